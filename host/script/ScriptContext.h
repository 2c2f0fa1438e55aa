#pragma once
// What the scenario commands share: the scripted user, the fake clock, the
// program's folder and its store, the component with the host events heard
// so far, and where the expectations on events and messages have got to.

#include <cstddef>
#include <functional>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "session/clsTask2.h"

namespace qv {

class ScriptedUi;
class FakeClock;
class Reporter;
class Form;
class ScriptHelp;

class ScriptContext {
public:
    // unanswered: told when a message box comes with no answer queued.
    ScriptContext(std::ostream& out, std::function<void(const std::string&)> unanswered);
    ~ScriptContext();
    ScriptContext(const ScriptContext&) = delete;
    ScriptContext& operator=(const ScriptContext&) = delete;

    [[nodiscard]] std::ostream& out() { return out_; }
    [[nodiscard]] ScriptedUi& ui() { return *ui_; }
    [[nodiscard]] FakeClock& clock() { return *clock_; }
    [[nodiscard]] ScriptHelp& help() { return *help_; }

    // A fresh store in a temporary folder, unless one is in use.
    void ensureStore();
    // The program's folder named by the script, before the store is used.
    void useHome(const std::string& folder);
    [[nodiscard]] const std::string& folder() const { return folder_; }
    [[nodiscard]] std::string storePath() const;
    [[nodiscard]] std::string reportPath(const std::string& file) const;
    // The first value of a query on the store, "(no row)" or "(null)".
    [[nodiscard]] std::string queryOne(const std::string& sql) const;

    clsTask2& task();
    // The dialog shown on top; throws when none is.
    [[nodiscard]] Form& activeForm() const;

    std::vector<HostEvent> events;
    std::size_t eventCursor = 0;
    std::size_t messageCursor = 0;

private:
    std::ostream& out_;
    std::unique_ptr<ScriptedUi> ui_;
    std::unique_ptr<FakeClock> clock_;
    std::shared_ptr<Reporter> reporter_;
    std::unique_ptr<ScriptHelp> help_;
    std::unique_ptr<clsTask2> task_;
    std::string folder_;
    bool ownsFolder_ = false;
};

}  // namespace qv
