#pragma once
// Runs the component headless from a scenario script and prints what
// happened: every host event, every message box and every failed
// expectation. Hosts use it for their own integration tests.

#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "script/ScriptLine.h"

namespace qv {

class ScriptContext;

class ScriptRunner {
public:
    explicit ScriptRunner(std::ostream& out);
    ~ScriptRunner();

    // Runs the whole script; returns the number of failed expectations
    // (a line that can't run counts as one).
    int run(const std::vector<std::string>& lines);

    [[nodiscard]] int passed() const { return passed_; }
    [[nodiscard]] int failed() const { return failed_; }
    [[nodiscard]] const std::string& folder() const;

private:
    void runNextStep();
    void step(const ScriptLine& line);
    void expect(const ScriptLine& line);
    void fail(const ScriptLine& line, const std::string& why);

    std::ostream& out_;
    std::unique_ptr<ScriptContext> context_;
    std::vector<ScriptLine> steps_;
    std::size_t next_ = 0;
    int passed_ = 0;
    int failed_ = 0;
};

}  // namespace qv
