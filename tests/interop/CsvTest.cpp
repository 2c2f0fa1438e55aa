// The task list as a spreadsheet file.

#include <gtest/gtest.h>

#include "interop/CsvWriter.h"
#include "interop/Interop.h"
#include "interop/InteropFixture.h"

namespace qv {

namespace {

using CsvTest = InteropFixture;

TEST(CsvField, QuotesOnlyWhatNeedsIt) {
    const std::pair<std::string, std::string> cases[] = {
        {"plain", "plain"},
        {"a, b", "\"a, b\""},
        {"say \"hi\"", "\"say \"\"hi\"\"\""},
        {"two\nlines", "\"two\nlines\""},
        {"semi; colon", "semi; colon"},
        {"\xD7\xA9\xD7\x9C\xD7\x95\xD7\x9D \xF0\x9F\x98\x80", "\xD7\xA9\xD7\x9C\xD7\x95\xD7\x9D \xF0\x9F\x98\x80"},
        {"", ""},
    };
    for (const auto& [text, field] : cases) EXPECT_EQ(CsvWriter::field(text), field) << text;
}

TEST_F(CsvTest, TheListWithItsColumnNamesAndBothFormsOfDurations) {
    fillStore(3);
    const std::string file = tempPath("list.csv");
    const auto out = Interop::exportSpreadsheet(file);
    ASSERT_TRUE(out.ok) << out.message;
    EXPECT_EQ(out.tasks, 3);
    const std::string text = readFile(file);
    EXPECT_EQ(text.substr(0, text.find("\r\n")),
              "Description,Project,Status,Deadline,Time Needed,Time Needed (minutes),Time Spent,"
              "Time Spent (minutes),Possible Points");
    // Task 1: notes aside, a description with a line break; no deadline; 15 minutes needed, 7 spent.
    EXPECT_NE(text.find("\r\n\"line one\nline two\n\nline four 1\",Project + name 0,In Progress,,0:15,15,0:07,7,1\r\n"),
              std::string::npos)
        << text;
    // Task 0: quotes and commas; done; a deadline to the minute.
    EXPECT_NE(text.find("\r\n\"Say \"\"hello\"\", then; leave 0\",Project + name 0,Completed,2026-03-03 09:00,0:00,0,"
                        "0:00,0,0\r\n"),
              std::string::npos)
        << text;
}

}  // namespace

}  // namespace qv
