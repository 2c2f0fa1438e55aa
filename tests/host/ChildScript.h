#pragma once
// The child of a forked process test: runs the scenario lines and ends the
// process, without returning into the test.

#include <unistd.h>

#include <sstream>
#include <string>
#include <vector>

#include "script/ScriptRunner.h"

namespace qv {

[[noreturn]] inline void runScriptAndExit(const std::vector<std::string>& lines) {
    try {
        std::ostringstream out;
        ScriptRunner runner(out);
        runner.run(lines);
    } catch (...) {
        _exit(1);
    }
    _exit(0);
}

}  // namespace qv
