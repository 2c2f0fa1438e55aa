// Files written by other programs, and files that can't be imported.

#include <gtest/gtest.h>

#include "interop/Interop.h"
#include "interop/InteropFixture.h"
#include "interop/ImportSet.h"

namespace qv {

namespace {

using ForeignFileTest = InteropFixture;

std::string task(const char* uid) {
    return "'" + storeKeyOf(uid) + "'";
}

TEST_F(ForeignFileTest, AHandWrittenFileImportsAsDocumented) {
    const std::string file = std::string(QV_SOURCE_DIR) + "/tests/interop/foreign.ics";
    const auto in = Interop::importCalendar(file);
    ASSERT_TRUE(in.ok) << in.message;
    EXPECT_EQ(in.message, "Imported " + file +
                              ": 3 tasks added, 0 tasks updated, 1 appointment added, 0 appointments updated, "
                              "0 projects and 2 keywords added. 1 event related to no task left out.");
    const std::string milk = task("20260301T090000Z-4711@example.org");
    const std::string tax = task("20260301T090500Z-4712@example.org");
    const std::string plumber = task("20260301T091000Z-4713@example.org");
    struct Expect {
        std::string sql, value;
    };
    const Expect expectations[] = {
        // escaped commas, folded lines
        {"SELECT tskDesc FROM TASKS WHERE tskGUIDID=" + milk, "Buy milk, eggs, and bread"},
        {"SELECT tskNotes FROM TASKS WHERE tskGUIDID=" + milk,
         "A description long enough to need folding: the calendar format says a line holds 75 octets at most, so "
         "this one goes on to a second line and a third."},
        // a date alone is that day's midnight; a floating time is local time as it stands
        {"SELECT tskDeadline FROM TASKS WHERE tskGUIDID=" + milk, "2026-03-15T00:00:00.000"},
        {"SELECT tskDeadline FROM TASKS WHERE tskGUIDID=" + tax, "2026-04-20T17:00:00.000"},
        // PRIORITY 1-2, 3-4, 5, 6-7, 8-9 to the five importances
        {"SELECT tskImp FROM TASKS WHERE tskGUIDID=" + milk, "0"},
        {"SELECT tskImp FROM TASKS WHERE tskGUIDID=" + tax, "4"},
        {"SELECT tskImp FROM TASKS WHERE tskGUIDID=" + plumber, "2"},
        // status: to do is Defined, completed is the done status
        {"SELECT tskStatus FROM TASKS WHERE tskGUIDID=" + milk, "3"},
        {"SELECT tskStatus FROM TASKS WHERE tskGUIDID=" + tax, "0"},
        {"SELECT tskWasImported FROM TASKS WHERE tskGUIDID=" + tax, "1"},
        {"SELECT tskHasSchedule FROM TASKS WHERE tskGUIDID=" + plumber, "1"},
        // categories become keywords of the subject "Imported"
        {"SELECT COUNT(*) FROM TaskKeywords WHERE ktTASKGUID=" + milk, "2"},
        {"SELECT keySubject FROM KEYWORDS WHERE keyKeyword='Home, garden'", "Imported"},
        // the related event is an appointment of its to-do
        {"SELECT taTaskGUIDID FROM TASKAPPTS", storeKeyOf("20260301T091000Z-4713@example.org")},
        {"SELECT taStartTime FROM TASKAPPTS", "2026-03-05T14:00:00.000"},
        {"SELECT taDuration FROM TASKAPPTS", "90"},
        {"SELECT taWasWorked FROM TASKAPPTS", "0"},
    };
    for (const auto& e : expectations) EXPECT_EQ(readOne(e.sql), e.value) << e.sql;

    const auto again = Interop::importCalendar(file);
    ASSERT_TRUE(again.ok) << again.message;
    EXPECT_EQ(again.counts.tasksAdded + again.counts.tasksChanged + again.counts.keywordsAdded +
                  again.counts.appointmentsAdded + again.counts.appointmentsChanged,
              0)
        << again.message;
}

struct BadFile {
    const char* name;
    std::string text;
    std::string message;  // after "FILE, line "
};

const std::string kHead = "BEGIN:VCALENDAR\r\nVERSION:2.0\r\nPRODID:-//x//y//EN\r\n";
const std::string kTail = "END:VCALENDAR\r\n";

TEST_F(ForeignFileTest, ABadFileIsNamedWithItsLineAndNothingIsWritten) {
    fillStore(3);
    const auto before = dump("TASKS");
    const BadFile cases[] = {
        {"no summary", kHead + "BEGIN:VTODO\r\nUID:a\r\nEND:VTODO\r\n" + kTail,
         "4: the to-do \"a\" has no SUMMARY"},
        {"a line that is no property", kHead + "BEGIN:VTODO\r\nUID:a\r\nSUMMARY:s\r\njust words\r\nEND:VTODO\r\n" + kTail,
         "7: this line can't be read: just words"},
        {"no END", kHead + "BEGIN:VTODO\r\nUID:a\r\nSUMMARY:s\r\n", "4: this BEGIN has no END"},
        {"not a calendar", "Dear diary,\r\ntoday nothing.\r\n",
         "1: not an iCalendar file (it must begin with BEGIN:VCALENDAR)"},
        {"an impossible date", kHead + "BEGIN:VTODO\r\nUID:a\r\nSUMMARY:s\r\nDUE:20261345T100000Z\r\nEND:VTODO\r\n" + kTail,
         "7: DUE is not a possible date and time"},
        {"an unreadable exact value",
         kHead + "BEGIN:VTODO\r\nUID:a\r\nSUMMARY:s\r\nX-QUORVEL-STATUS:done\r\nEND:VTODO\r\n" + kTail,
         "7: X-QUORVEL-STATUS \"done\" can't be read"},
        {"not UTF-8", kHead + "BEGIN:VTODO\r\nUID:a\r\nSUMMARY:caf\xE9\r\nEND:VTODO\r\n" + kTail,
         "6: the text is not UTF-8"},
        {"a project name too long",
         kHead + "X-QUORVEL-PRJ-NAME;X-QUORVEL-KEY=P:" + std::string(102, 'n') + "\r\n" + kTail,
         "4: the project \"" + std::string(102, 'n') + "\": The new Project name is too long."},
        // The first to-do is fine: the file is still refused whole.
        {"a good to-do before a bad one",
         kHead + "BEGIN:VTODO\r\nUID:ok\r\nSUMMARY:fine\r\nEND:VTODO\r\nBEGIN:VTODO\r\nUID:b\r\nEND:VTODO\r\n" + kTail,
         "8: the to-do \"b\" has no SUMMARY"},
    };
    for (const auto& c : cases) {
        const std::string file = tempPath("bad.ics");
        writeFile(file, c.text);
        const auto in = Interop::importCalendar(file);
        EXPECT_FALSE(in.ok) << c.name;
        EXPECT_EQ(in.message, file + ", line " + c.message) << c.name;
        EXPECT_EQ(dump("TASKS"), before) << c.name;
    }
    const auto missing = Interop::importCalendar(tempPath("absent.ics"));
    EXPECT_EQ(missing.message, tempPath("absent.ics") + " can't be read: no such file, or no permission to read it");
    EXPECT_TRUE(reporter().faults().empty());
}

// A project or keyword of the file that the store has under another key is
// the stored one, as Add Project and Add Keyword would find it.
TEST_F(ForeignFileTest, KnownNamesAreTheStoredProjectsAndKeywords) {
    exec("INSERT INTO PROJECTS (prjGUIDID, prjProject, prjSummary, StatusLong) VALUES "
         "('PPPPPPPP-0000-0000-0000-000000000001', 'Garden', 'Outside', 4)");
    exec("INSERT INTO KEYWORDS (keyGUIDID, keySubject, keyKeyword) VALUES "
         "('KKKKKKKK-0000-0000-0000-000000000001', 'Places', 'Shed')");
    const std::string file = tempPath("names.ics");
    writeFile(file, kHead +
                        "X-QUORVEL-PRJ-NAME;X-QUORVEL-KEY=other-project:  GARDEN \r\n"
                        "X-QUORVEL-KW-SUBJECT;X-QUORVEL-KEY=other-keyword:Places\r\n"
                        "X-QUORVEL-KW-NAME;X-QUORVEL-KEY=other-keyword:Shed \r\n"
                        "BEGIN:VTODO\r\nUID:t\r\nSUMMARY:Paint the shed\r\nX-QUORVEL-PROJECT:other-project\r\n"
                        "X-QUORVEL-KEYWORD:other-keyword\r\nEND:VTODO\r\n" +
                        kTail);
    const auto in = Interop::importCalendar(file);
    ASSERT_TRUE(in.ok) << in.message;
    EXPECT_EQ(in.counts.projectsAdded + in.counts.keywordsAdded, 0);
    EXPECT_EQ(readOne("SELECT tskProjectKey FROM TASKS"), "PPPPPPPP-0000-0000-0000-000000000001");
    EXPECT_EQ(readOne("SELECT ktKEYGUID FROM TaskKeywords"), "KKKKKKKK-0000-0000-0000-000000000001");
    EXPECT_EQ(readOne("SELECT ktKeyword FROM TaskKeywords"), "Shed");
}

}  // namespace

}  // namespace qv
