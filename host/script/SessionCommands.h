#pragma once
// The scenario commands that set the scene: the program's folder and its
// store, the component's calls, the clock and the settings file.
//
//   home DIR                 the program's folder (before the store is used)
//   sql "STATEMENT"          run a statement on the store
//   mop TEXT                 clsTask2::SetMOP
//   setup MODE [task=KEY] [ta=KEY] [project=KEY] [dialog=N] [print=TEXT]
//   advance MS               let time pass (timers fire)
//   clock YYYY-MM-DD [HH:MM[:SS]]
//   settings-file "TEXT"     write QuorvelSettings.txt

#include <optional>
#include <string>

#include "script/ScriptCommands.h"

namespace qv {

class SessionCommands {
public:
    static void addTo(ScriptCommands& table);
    // A date as scripts write it: "2026-03-01", "2026-03-01 09:30[:15]", or
    // a date text of the program's own form.
    [[nodiscard]] static std::optional<double> scriptDate(std::string text);

private:
    static void home(ScriptContext& c, const ScriptLine& l);
    static void sql(ScriptContext& c, const ScriptLine& l);
    static void mop(ScriptContext& c, const ScriptLine& l);
    static void setup(ScriptContext& c, const ScriptLine& l);
    static void advance(ScriptContext& c, const ScriptLine& l);
    static void clock(ScriptContext& c, const ScriptLine& l);
    static void settingsFile(ScriptContext& c, const ScriptLine& l);
};

}  // namespace qv
