// The component's texts in the user's language: the same scenarios run under
// German, where each message comes from the catalogue of the build tree, and
// under the C locale, where every text is the English one, byte for byte.

#include <gtest/gtest.h>

#include <clocale>
#include <cstdlib>
#include <sstream>
#include <string>
#include <vector>

#include "script/ScriptRunner.h"
#include "toolkit/TextFill.h"
#include "toolkit/Translate.h"

namespace qv {
namespace {

// The messages' language for one test; the C locale again afterwards.
class Language {
public:
    explicit Language(const char* locale) { ok_ = std::setlocale(LC_ALL, locale) != nullptr; }
    ~Language() { std::setlocale(LC_ALL, "C"); }
    [[nodiscard]] bool ok() const { return ok_; }

private:
    bool ok_ = false;
};

constexpr const char* kTask =
    "sql \"INSERT INTO TASKS (tskGUIDID, tskDesc, tskStatus, tskImp, tskDifficulty, tskTimeNeeded, "
    "tskTimeScheduled) VALUES ('11111111-0000-0000-0000-000000000001', 'Write the report', 3, 2, 1, 60, 0)\"";
constexpr const char* kAppointment =
    "sql \"INSERT INTO TASKAPPTS (taGUIDID, taTaskGUIDID, taStartTime, taEndTime, taTaskDesc, taImp, taDifficulty, "
    "taWasWorked, taDuration) VALUES ('22222222-0000-0000-0000-000000000001', '11111111-0000-0000-0000-000000000001', "
    "'2026-11-24T13:00:00.000', '2026-11-24T14:00:00.000', 'Write the report', 2, 1, 0, 60)\"";

struct Case {
    const char* what;
    std::vector<std::string> lines;  // %1 stands for the text expected
    const char* english;
    const char* german;
};

const Case kCases[] = {
    {"a refused update",
     {kTask, kAppointment, "setup 2 task=22222222-0000-0000-0000-000000000001 ta=22222222-0000-0000-0000-000000000001",
      "type spellTask \"\"", "answer ok", "key enter", "expect message \"%1\"", "expect form none"},
     "Task Description cannot be blank.", "Die Aufgabenbeschreibung darf nicht leer sein."},
    {"the delete question",
     {kTask, kAppointment, "setup 1 task=11111111-0000-0000-0000-000000000001", "answer no",
      "click smtActions.DELETE", "expect message \"%1\"", "key escape", "expect form none"},
     "Delete this task?", "Diese Aufgabe löschen?"},
    {"a window caption",
     {"setup 0", "advance 600", "expect caption \"%1\"", "answer yes", "key escape", "expect form none"},
     "Quorvel - Version 1.14 - New Task", "Quorvel - Version 1.14 - Neue Aufgabe"},
    {"a tool's caption", {"setup 0", "advance 600", "expect tool smtActions.QV2 caption \"%1\"", "answer yes", "key escape"},
     "A&dd", "H&inzufügen"},
    {"counts in their plural forms",
     {kTask, kAppointment, "export tasks.ics", "expect interop \"%1\""},
     "Exported 1 task and 1 appointment to tasks.ics.", "1 Aufgabe und 1 Termin nach tasks.ics exportiert."},
};

void runCase(const Case& c, const char* expected) {
    std::vector<std::string> lines;
    for (const auto& line : c.lines) lines.push_back(fill(line, {expected}));
    std::ostringstream out;
    ScriptRunner runner(out);
    EXPECT_EQ(runner.run(lines), 0) << c.what << "\n" << out.str();
}

TEST(Languages, GermanMessagesComeFromTheCatalogue) {
    setenv("QUORVEL_LOCALEDIR", QV_LOCALE_BUILD_DIR, 1);
    setenv("LANGUAGE", "de", 1);
    Language german("de_DE.UTF-8");
    if (!german.ok()) GTEST_SKIP() << "no de_DE.UTF-8 locale on this machine";
    EXPECT_EQ(catalogueFolder(), QV_LOCALE_BUILD_DIR);
    for (const Case& c : kCases) runCase(c, c.german);
    EXPECT_EQ(trn("Task Appointments: %1", "Task Appointments: %1", 1), "Aufgabentermin: %1");
    EXPECT_EQ(trn("Task Appointments: %1", "Task Appointments: %1", 0), "Aufgabentermine: %1");
}

TEST(Languages, TheCLocaleKeepsEveryTextInEnglish) {
    setenv("QUORVEL_LOCALEDIR", QV_LOCALE_BUILD_DIR, 1);
    setenv("LANGUAGE", "de", 1);  // asks for German, which the C locale does not follow
    Language english("C");
    for (const Case& c : kCases) runCase(c, c.english);
    for (unsigned long n : {0UL, 1UL, 2UL})
        EXPECT_EQ(trn("%1 task", "%1 tasks", n), n == 1 ? "%1 task" : "%1 tasks");
}

TEST(Languages, FillPutsThePartsInTheirPlaces) {
    const std::pair<std::string, const char*> rows[] = {
        {fill("%1 and %2", {"a", "b"}), "a and b"},
        {fill("%2 before %1", {"a", "b"}), "b before a"},
        {fill("100% of %1", {"it"}), "100% of it"},
        {fill("%3 has no part", {"a"}), "%3 has no part"},
        {fill("%1", {"%2"}), "%2"},  // a part is not searched again
        {fill("ends with %", {}), "ends with %"},
    };
    for (const auto& [got, filled] : rows) EXPECT_EQ(got, filled);
}

}  // namespace
}  // namespace qv
