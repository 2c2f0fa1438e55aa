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

// A script's failures are counted and each is told with its line; a script
// that leaves a dialog waiting fails instead of hanging.
TEST(ScriptRunner, FailedExpectationsAndBadLinesAreCountedAndTold) {
    const struct {
        const char* script;
        int failed, passed;  // passed -1: not checked
        std::vector<const char*> told;
    } cases[] = {
        {"setup 0\nexpect event NewTask\nexpect row \"SELECT COUNT(*) FROM TASKS\" 5\nfrobnicate\n"
         "type spellTask \"unclosed\nkey escape\nexpect form none\n",
         4, 1,  // the event, the row, the unknown command, the quote
         {"FAILED line 2: no event NewTask", "FAILED line 4: unknown command", "FAILED line 5: unclosed quote"}},
        {"setup 0\nadvance 600\ntype spellTask \"Sweep the yard\"\nanswer yes\nclick smtActions.PRINT\n"
         "expect report NewTask.htm \"Sweep the yard\"\nexpect report NewTask.htm \"Mow the lawn\"\n"
         "expect no-report NewTask.htm\nexpect report Other.htm \"x\"\nexpect pdfpages NewTask.pdf 1\n"
         "answer yes\nkey escape\n",
         4, 1,
         {"FAILED line 7: the report NewTask.htm does not hold \"Mow the lawn\"",
          "FAILED line 8: the report NewTask.htm was written", "FAILED line 9: no report Other.htm",
          "FAILED line 10: no PDF NewTask.pdf"}},
        {"expect help 600 \"Quorvel: Creating New Tasks\"\nsetup 0\nclick smtActions.HELP\n"
         "expect help 601 \"Quorvel: Creating New Tasks\"\nexpect help-page POP-KEYWORDS.htm\n"
         "key escape\nanswer yes\nkey escape\n",
         3, -1,
         {"FAILED line 1: no help is shown", "FAILED line 4: the help shows topic 600 \"Quorvel: Creating New Tasks\"",
          "FAILED line 5: the help pane shows \"POP-TASKDIALOG.htm\""}},
        // Escape on a changed dialog asks before cancelling.
        {"setup 0\ntype spellTask \"half written\"\nkey escape\nexpect form none\n", -1, -1,
         {"no answer queued for the message \"Cancel creating the current task?\""}},
        {"setup 0\n", -1, -1, {"FAILED line 1: script ran out while frmTask3 is shown"}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.script);
        std::ostringstream out;
        ScriptRunner runner(out);
        const int failed = runner.run(linesOf(c.script));
        const auto text = out.str();
        if (c.failed >= 0) {
            EXPECT_EQ(failed, c.failed) << text;
        } else {
            EXPECT_GE(failed, 1) << text;
        }
        if (c.passed >= 0) {
            EXPECT_EQ(runner.passed(), c.passed) << text;
        }
        for (const char* told : c.told) EXPECT_NE(text.find(told), std::string::npos) << text;
    }
}

}  // namespace
}  // namespace qv
