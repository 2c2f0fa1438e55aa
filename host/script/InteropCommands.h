#pragma once
// The scenario commands of calendar and spreadsheet files. A relative FILE
// lies in the program's folder.
//
//   export FILE.ics [project=KEY|task=KEY|current]   the tasks to a calendar file
//   import FILE.ics                                   a calendar file into the store
//   export-csv FILE.csv                               the task list to a spreadsheet file
//   expect interop TEXT          the outcome of the last of these, as printed
//   expect file FILE TEXT        the file holds TEXT

#include <ostream>
#include <string>

namespace qv {

struct ScriptLine;

class InteropCommands {
public:
    [[nodiscard]] static bool handles(const std::string& command);
    [[nodiscard]] static bool checks(const std::string& expectation);
    // Runs a command and prints its outcome; throws std::invalid_argument
    // for a bad line.
    void run(const std::string& folder, const ScriptLine& line, std::ostream& out);
    // An expectation: empty when it holds, else what was found.
    [[nodiscard]] std::string check(const std::string& folder, const ScriptLine& line) const;

private:
    std::string last_;  // the outcome of the last command
};

}  // namespace qv
