#pragma once
// Runs the component headless from a scenario script and prints what
// happened: every host event, every message box and every failed
// expectation. Hosts use it for their own integration tests.

#include <functional>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "script/InteropCommands.h"
#include "script/ScriptLine.h"
#include "session/clsTask2.h"

namespace qv {

class ScriptedUi;
class FakeClock;
class Reporter;
class Form;
class Sheet;
class Tool;
class ScriptHelp;

class ScriptRunner {
public:
    explicit ScriptRunner(std::ostream& out);
    ~ScriptRunner();

    // Runs the whole script; returns the number of failed expectations
    // (a line that can't run counts as one).
    int run(const std::vector<std::string>& lines);

    [[nodiscard]] int passed() const { return passed_; }
    [[nodiscard]] int failed() const { return failed_; }
    [[nodiscard]] const std::string& folder() const { return folder_; }

private:
    using Command = void (ScriptRunner::*)(const ScriptLine&);

    void runNextStep();
    void step(const ScriptLine& line);
    void fail(const ScriptLine& line, const std::string& why);
    void pass() { ++passed_; }

    // Commands.
    void cmdHome(const ScriptLine& l);
    void cmdSql(const ScriptLine& l);
    void cmdMop(const ScriptLine& l);
    void cmdSetup(const ScriptLine& l);
    void cmdType(const ScriptLine& l);
    void cmdClick(const ScriptLine& l);
    void cmdKey(const ScriptLine& l);
    void cmdClose(const ScriptLine& l);
    void cmdAnswer(const ScriptLine& l);
    void cmdAdvance(const ScriptLine& l);
    void cmdResize(const ScriptLine& l);
    void cmdDrag(const ScriptLine& l);
    void cmdClock(const ScriptLine& l);
    void cmdSettingsFile(const ScriptLine& l);
    void cmdExpect(const ScriptLine& l);

    void expectOnForm(const ScriptLine& l);
    void expectEvent(const ScriptLine& l, bool present);
    void expectMessage(const ScriptLine& l);
    void expectRow(const ScriptLine& l, bool count);
    void expectForm(const ScriptLine& l);
    void expectNoMessage(const ScriptLine& l);
    void expectHelp(const ScriptLine& l, bool page);
    void expectGrid(const ScriptLine& l);
    void expectFile(const ScriptLine& l);
    void expectReport(const ScriptLine& l, bool present);
    void expectPdfPages(const ScriptLine& l);

    void ensureStore();
    clsTask2& task();
    [[nodiscard]] Form& activeForm() const;
    [[nodiscard]] std::string queryOne(const std::string& sql) const;
    [[nodiscard]] std::string storePath() const;
    [[nodiscard]] std::string reportPath(const std::string& file) const;

    std::ostream& out_;
    std::unique_ptr<ScriptedUi> ui_;
    std::unique_ptr<FakeClock> clock_;
    std::shared_ptr<Reporter> reporter_;
    std::unique_ptr<ScriptHelp> help_;
    std::unique_ptr<clsTask2> task_;
    std::string folder_;
    bool ownsFolder_ = false;
    std::vector<ScriptLine> steps_;
    std::size_t next_ = 0;
    std::vector<HostEvent> events_;
    std::size_t eventCursor_ = 0;
    std::size_t messageCursor_ = 0;
    InteropCommands interop_;
    int passed_ = 0;
    int failed_ = 0;
};

}  // namespace qv
