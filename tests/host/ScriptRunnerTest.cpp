#include "script/ScriptRunner.h"

#include <gtest/gtest.h>
#ifdef QV_SCRIPT_PRINTING
#include "script/ScriptPrinting.h"
#endif

#include <filesystem>
#include <fstream>
#include <sstream>


namespace qv {
namespace {

std::vector<std::string> linesOf(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream in(text);
    for (std::string l; std::getline(in, l);) lines.push_back(l);
    return lines;
}

// The examples double as the component's end-to-end checks.
TEST(ScriptRunner, EveryExampleScriptRunsGreen) {
#ifdef QV_SCRIPT_PRINTING
    ScriptPrinting printing;
#endif
    int scripts = 0;
    for (const auto& entry : std::filesystem::directory_iterator(std::string(QV_SOURCE_DIR) + "/examples")) {
        if (entry.path().extension() != ".qvs") continue;
        ++scripts;
        std::ifstream file(entry.path());
        std::vector<std::string> lines;
        for (std::string l; std::getline(file, l);) lines.push_back(l);
        std::ostringstream out;
        ScriptRunner runner(out);
        EXPECT_EQ(runner.run(lines), 0) << entry.path() << "\n" << out.str();
        EXPECT_GT(runner.passed(), 0) << entry.path();
    }
    EXPECT_GE(scripts, 2);
}

TEST(ScriptRunner, FailedExpectationsAndBadLinesAreCountedAndTold) {
    std::ostringstream out;
    ScriptRunner runner(out);
    const int failed = runner.run(linesOf(R"(setup 0
expect event NewTask
expect row "SELECT COUNT(*) FROM TASKS" 5
frobnicate
type spellTask "unclosed
key escape
expect form none
)"));
    EXPECT_EQ(failed, 4);  // the event, the row, the unknown command, the quote
    EXPECT_EQ(runner.passed(), 1);
    const auto text = out.str();
    for (const char* told : {"FAILED line 2: no event NewTask", "FAILED line 4: unknown command",
                             "FAILED line 5: unclosed quote"})
        EXPECT_NE(text.find(told), std::string::npos) << text;
}

TEST(ScriptRunner, ReportExpectationsReadTheWrittenFiles) {
    std::ostringstream out;
    ScriptRunner runner(out);
    const int failed = runner.run(linesOf(R"(setup 0
advance 600
type spellTask "Sweep the yard"
answer yes
click smtActions.PRINT
expect report NewTask.htm "Sweep the yard"
expect report NewTask.htm "Mow the lawn"
expect no-report NewTask.htm
expect report Other.htm "x"
expect pdfpages NewTask.pdf 1
answer yes
key escape
)"));
    const auto text = out.str();
    EXPECT_EQ(runner.passed(), 1) << text;
    EXPECT_EQ(failed, 4) << text;
    for (const char* told : {"FAILED line 7: the report NewTask.htm does not hold \"Mow the lawn\"",
                             "FAILED line 8: the report NewTask.htm was written", "FAILED line 9: no report Other.htm",
                             "FAILED line 10: no PDF NewTask.pdf"})
        EXPECT_NE(text.find(told), std::string::npos) << text;
}

TEST(ScriptRunner, AnUnansweredMessageIsAFailureNotAHang) {
    std::ostringstream out;
    ScriptRunner runner(out);
    // Escape on a changed dialog asks before cancelling.
    runner.run(linesOf("setup 0\ntype spellTask \"half written\"\nkey escape\nexpect form none\n"));
    EXPECT_NE(out.str().find("no answer queued for the message \"Cancel creating the current task?\""),
              std::string::npos)
        << out.str();
    EXPECT_GE(runner.failed(), 1);
}

TEST(ScriptRunner, HelpExpectationsSayWhatTheHelpShows) {
    std::ostringstream out;
    ScriptRunner runner(out);
    const int failed = runner.run(linesOf(R"(expect help 600 "Quorvel: Creating New Tasks"
setup 0
click smtActions.HELP
expect help 601 "Quorvel: Creating New Tasks"
expect help-page POP-KEYWORDS.htm
key escape
answer yes
key escape
)"));
    EXPECT_EQ(failed, 3);
    const auto text = out.str();
    for (const char* told : {"FAILED line 1: no help is shown",
                             "FAILED line 4: the help shows topic 600 \"Quorvel: Creating New Tasks\"",
                             "FAILED line 5: the help pane shows \"POP-TASKDIALOG.htm\""})
        EXPECT_NE(text.find(told), std::string::npos) << text;
}

TEST(ScriptRunner, AScriptThatEndsWhileADialogIsShownFails) {
    std::ostringstream out;
    ScriptRunner runner(out);
    EXPECT_GE(runner.run(linesOf("setup 0\n")), 1);
    EXPECT_NE(out.str().find("FAILED line 1: script ran out while frmTask3 is shown"), std::string::npos)
        << out.str();
}

}  // namespace
}  // namespace qv
