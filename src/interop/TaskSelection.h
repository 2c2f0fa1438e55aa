#pragma once
// The rows an export takes from the store: the scope's tasks with their
// keyword links and appointments, and the projects and keywords they name
// (every project and keyword when the scope is all tasks, so a whole store
// travels whole).

#include <vector>

#include "interop/ExportScope.h"
#include "interop/StoreColumns.h"

namespace qv {

struct TaskSelection {
    std::vector<Row> tasks;
    std::vector<Row> links;
    std::vector<Row> appointments;
    std::vector<Row> projects;
    std::vector<Row> keywords;

    // Throws InteropError when the scope's task or project is not stored.
    static TaskSelection read(const ExportScope& scope);
    // One selection per task, each with what that task names (a folder of
    // one file per to-do, as calendar folders keep them).
    [[nodiscard]] std::vector<TaskSelection> perTask() const;
};

}  // namespace qv
