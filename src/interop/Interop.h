#pragma once
// Tasks that travel: a calendar file (iCalendar, through libical) out of
// and into the store, and the task list as a spreadsheet file. Each call
// tells its outcome in one sentence; a file that can't be used is named
// with its line, and nothing is written. A fault of the store goes down
// the error path like any other.

#include <string>

#include "interop/ExportScope.h"
#include "interop/StoreImporter.h"

namespace qv {

struct InteropResult {
    bool ok = false;
    std::string message;  // what happened, or what was wrong
    int tasks = 0;        // tasks written to the file, or read from it
    ImportCounts counts;  // of an import
};

class Interop {
public:
    static InteropResult exportCalendar(const std::string& path, const ExportScope& scope);
    static InteropResult importCalendar(const std::string& path);
    static InteropResult exportSpreadsheet(const std::string& path);
};

}  // namespace qv
