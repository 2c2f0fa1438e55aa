// The exported file read by two readers that no one here wrote: Python's
// icalendar package and todoman (from a folder of one file per to-do). Each
// sees every to-do's summary, due time and completion as the store has them.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <sstream>

#include "interop/Interop.h"
#include "interop/InteropFixture.h"
#include "session/globals/SessionGlobals.h"
#include "store/Recordset.h"
#include "values/types/DateSerial.h"

namespace qv {

namespace {

using ReadersTest = InteropFixture;

const std::string kScripts = std::string(QV_SOURCE_DIR) + "/tests/interop/readers/";

std::string jsonString(const std::string& text) {
    std::string out = "\"";
    for (char c : text) {
        if (c == '"' || c == '\\') out += std::string("\\") + c;
        else if (c == '\n') out += "\\n";
        else out += c;
    }
    return out + "\"";
}

std::vector<std::string> sortedLines(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream in(text);
    for (std::string line; std::getline(in, line);) lines.push_back(line);
    std::sort(lines.begin(), lines.end());
    return lines;
}

// What a reader should list, in the lines of readers/*.py, sorted.
std::vector<std::string> expectedLines() {
    Recordset rs;
    rs.Open("SELECT tskDesc, tskDeadline, tskStatus FROM TASKS", g().ConnString, adOpenStatic, adLockReadOnly);
    std::string text;
    for (; !rs.EOF_(); rs.MoveNext()) {
        const Value due = rs.Fields("tskDeadline").value();
        const std::string when = due.isNull() ? "" : dateserial::toIso(due.toDate().serial).substr(0, 19);
        text += "[" + jsonString(rs.Fields("tskDesc").value().toText()) + ", " + jsonString(when) + ", " +
                (rs.Fields("tskStatus").value().toInt32() == 0 ? "true" : "false") + "]\n";
    }
    return sortedLines(text);
}

bool installed(const std::string& check) {
    return std::system((check + " >/dev/null 2>&1").c_str()) == 0;
}

TEST_F(ReadersTest, PythonIcalendarReadsTheFileWithoutAWarning) {
    if (!installed("/usr/bin/python3 -c 'import icalendar'")) GTEST_SKIP() << "python3-icalendar is not installed";
    fillStore(24);
    const std::string file = tempPath("tasks.ics");
    ASSERT_TRUE(Interop::exportCalendar(file, ExportScope::all()).ok);
    EXPECT_EQ(sortedLines(run("/usr/bin/python3 " + kScripts + "read_icalendar.py " + file)), expectedLines());
}

TEST_F(ReadersTest, TodomanListsTheToDosOfAnExportedFolder) {
    if (!installed("test -x /usr/bin/todoman")) GTEST_SKIP() << "todoman is not installed";
    fillStore(24);
    const std::string vdir = tempPath("vdir/tasks");
    std::filesystem::create_directories(vdir);
    const auto out = Interop::exportCalendar(vdir, ExportScope::all());
    ASSERT_TRUE(out.ok) << out.message;
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(vdir), {}), 24);
    EXPECT_EQ(sortedLines(run("/usr/bin/python3 " + kScripts + "read_todoman.py " + folder())), expectedLines());
}

}  // namespace

}  // namespace qv
