#pragma once
// The scenario commands of calendar and spreadsheet files. A relative FILE
// lies in the program's folder, and is told by its own name.
//
//   export FILE.ics [project=KEY|task=KEY|current]   the tasks to a calendar file
//   import FILE.ics                                   a calendar file into the store
//   export-csv FILE.csv                               the task list to a spreadsheet file
//   expect interop TEXT          the outcome of the last of these, as printed
//   expect file FILE TEXT        the file holds TEXT

#include <string>

#include "script/ScriptCommands.h"

namespace qv {

class InteropCommands {
public:
    static void addTo(ScriptCommands& table);

private:
    static void run(ScriptContext& c, const ScriptLine& l);
    [[nodiscard]] static std::string outcome(ScriptContext& c, const ScriptLine& l);
    [[nodiscard]] static std::string file(ScriptContext& c, const ScriptLine& l);
};

}  // namespace qv
