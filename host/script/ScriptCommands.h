#pragma once
// The scenario driver's dispatch table. Each command family adds its
// commands (the first word of a line) and its expectations (the word after
// "expect"); an expectation gives "" when it holds, else what was found,
// and a line it can't read throws std::invalid_argument.

#include <map>
#include <string>

namespace qv {

class ScriptContext;
struct ScriptLine;

using ScriptCommand = void (*)(ScriptContext&, const ScriptLine&);
using ScriptCheck = std::string (*)(ScriptContext&, const ScriptLine&);

struct ScriptCommands {
    std::map<std::string, ScriptCommand> commands;
    std::map<std::string, ScriptCheck> checks;
};

}  // namespace qv
