#pragma once
// What a task dialog gives its report: the rows of the task table, the
// checklist and notes editors, and, for a dialog with a schedule, its rows.

#include <optional>

#include "reports/ReportRows.h"

namespace qv {

class TextEditor;

class ReportSource {
public:
    virtual ~ReportSource() = default;
    // Two columns: the label and the value.
    [[nodiscard]] virtual ReportRows taskRows() = 0;
    [[nodiscard]] virtual const TextEditor& checklistEditor() const = 0;
    [[nodiscard]] virtual const TextEditor& notesEditor() const = 0;
    // Only the Existing Task dialog prints a schedule.
    [[nodiscard]] virtual bool hasSchedule() const { return false; }
    // Five columns, one row per appointment; nothing when the grid has no
    // rows source.
    [[nodiscard]] virtual std::optional<ReportRows> scheduleRows() { return std::nullopt; }
};

}  // namespace qv
