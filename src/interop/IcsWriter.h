#pragma once
// Builds the calendar of a selection: the projects and keywords as
// X-QUORVEL properties of the calendar, a VTODO per task and a VEVENT per
// Task Appointment (RELATED-TO its task).

#include <string>

#include "interop/IcalPtr.h"
#include "interop/TaskSelection.h"

namespace qv {

class IcsWriter {
public:
    [[nodiscard]] static IcalComponentPtr calendar(const TaskSelection& selection);
    // Writes the text beside path and renames it over path, so a reader
    // never meets half a file. Throws InteropError when it can't.
    static void save(icalcomponent* calendar, const std::string& path);
    static void saveText(const std::string& text, const std::string& path);
};

}  // namespace qv
