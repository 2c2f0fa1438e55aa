#pragma once
// The command line's file options, run without a window:
//   --import FILE.ics                 a calendar file into the store
//   --export FILE.ics [--project KEY] the tasks (one project's) to a calendar file
//   --export-csv FILE.csv             the task list to a spreadsheet file
// Each outcome is one line: on standard output when it went, on standard
// error when it did not.

#include <string>

namespace qv {

struct TaskFileOptions {
    std::string importFile;
    std::string exportFile;
    std::string projectKey;  // with exportFile: only this project's tasks
    std::string exportCsvFile;

    [[nodiscard]] bool any() const { return !importFile.empty() || !exportFile.empty() || !exportCsvFile.empty(); }
};

// Runs them on the store of the folder home (installed there if missing),
// the import first; 0 when all went, else 1.
int runTaskFileOptions(const std::string& home, const TaskFileOptions& options);

}  // namespace qv
