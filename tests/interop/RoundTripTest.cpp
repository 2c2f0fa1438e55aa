// A whole store out to a calendar file and into an empty store: every row
// of the five tables comes back equal, keys included; the same file into
// the first store changes nothing.

#include <gtest/gtest.h>

#include <cstdlib>

#include "interop/Interop.h"
#include "interop/InteropFixture.h"
#include "support/TestEnv.h"

namespace qv {

namespace {

using RoundTripTest = InteropFixture;

std::map<std::string, std::vector<std::string>> dumpAll() {
    std::map<std::string, std::vector<std::string>> all;
    for (const auto& table : kTravellingTables) all[table] = InteropFixture::dump(table);
    return all;
}

// QV_ROUNDTRIP_TASKS=1000 makes the store of the round trip larger.
int roundTripTasks() {
    const char* n = std::getenv("QV_ROUNDTRIP_TASKS");
    return n && std::atoi(n) > 0 ? std::atoi(n) : 60;
}

TEST_F(RoundTripTest, EveryRowComesBackAndASecondImportChangesNothing) {
    const int tasks = roundTripTasks();
    fillStore(tasks);
    const auto before = dumpAll();
    ASSERT_EQ(before.at("TASKS").size(), static_cast<std::size_t>(tasks));
    const std::string file = tempPath("all.ics");
    const auto out = Interop::exportCalendar(file, ExportScope::all());
    ASSERT_TRUE(out.ok) << out.message;
    EXPECT_EQ(out.tasks, tasks);

    useSecondStore();
    for (const auto& table : kTravellingTables) ASSERT_TRUE(dump(table).empty()) << table;
    const auto in = Interop::importCalendar(file);
    ASSERT_TRUE(in.ok) << in.message;
    EXPECT_EQ(in.counts.tasksAdded, tasks);
    EXPECT_EQ(in.counts.appointmentsAdded, tasks);
    const auto copied = dumpAll();
    for (const auto& table : kTravellingTables) EXPECT_EQ(copied.at(table), before.at(table)) << table;

    useFirstStore();
    const auto again = Interop::importCalendar(file);
    ASSERT_TRUE(again.ok) << again.message;
    EXPECT_EQ(again.counts.tasksAdded + again.counts.tasksChanged + again.counts.appointmentsAdded +
                  again.counts.appointmentsChanged + again.counts.projectsAdded + again.counts.keywordsAdded,
              0)
        << again.message;
    EXPECT_EQ(dumpAll(), before);
    EXPECT_TRUE(reporter().faults().empty());
}

// A file changed by another program updates only what it changed.
TEST_F(RoundTripTest, AnEditedFileUpdatesOnlyTheFieldsItChanged) {
    fillStore(6);
    const std::string file = tempPath("one.ics");
    ASSERT_TRUE(Interop::exportCalendar(file, ExportScope::task("T0000002-0000-4000-8000-000000000014")).ok);
    std::string text = readFile(file);
    const auto at = text.find("PRIORITY:5");
    ASSERT_NE(at, std::string::npos) << text;
    text.replace(at, 10, "PRIORITY:1");
    writeFile(file, text);
    exec("UPDATE TASKS SET tskTimeSpent = 999 WHERE tskGUIDID = 'T0000002-0000-4000-8000-000000000014'");

    const auto in = Interop::importCalendar(file);
    ASSERT_TRUE(in.ok) << in.message;
    EXPECT_EQ(in.counts.tasksChanged, 1) << in.message;  // its priority, and the time spent the file holds
    EXPECT_EQ(readOne("SELECT tskImp FROM TASKS WHERE tskGUIDID = 'T0000002-0000-4000-8000-000000000014'"), "0");
    EXPECT_EQ(readOne("SELECT tskTimeSpent FROM TASKS WHERE tskGUIDID = 'T0000002-0000-4000-8000-000000000014'"), "14");
}

struct ScopeCase {
    const char* name;
    ExportScope scope;
    int tasks;
};

TEST_F(RoundTripTest, EachScopeTakesItsTasks) {
    fillStore(30);
    const ScopeCase cases[] = {
        {"all", ExportScope::all(), 30},
        {"one task", ExportScope::task("T0000004-0000-4000-8000-000000000028"), 1},
        {"a project", ExportScope::project("P0000001-0000-4000-8000-000000000007"), 10},
        {"the Current list", ExportScope::current(), 10},
    };
    for (const auto& c : cases) {
        const auto out = Interop::exportCalendar(tempPath("scope.ics"), c.scope);
        ASSERT_TRUE(out.ok) << c.name << ": " << out.message;
        EXPECT_EQ(out.tasks, c.tasks) << c.name;
    }
    const auto missing = Interop::exportCalendar(tempPath("none.ics"), ExportScope::task("nope"));
    EXPECT_FALSE(missing.ok);
    EXPECT_EQ(missing.message, "There is no task with the key nope to export.");
}

}  // namespace

}  // namespace qv
