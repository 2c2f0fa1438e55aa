#pragma once
// The task tables of the Existing Task and Task Appointment reports, read
// from the dialogs' tools by position, and the schedule table read from
// the Existing Task's grid. Labels come from the tools' captions where the
// dialogs' sheets give them.

#include <optional>

#include "reports/ReportRows.h"

namespace qv {

class Sheet;
class TextEditor;
class DateBox;
class Grid;

class TaskReportRows {
public:
    // Twelve rows: the description, smtABOUT at positions 1, 2, the
    // deadline's day number and its time (position 6), positions 8 to 13,
    // and the points of smtReady.
    [[nodiscard]] static ReportRows existingTask(const TextEditor& spellTask, const Sheet& smtABOUT,
                                                 const DateBox& ctDeadline, const Sheet& smtReady);
    // Eight rows, at the Existing Task's positions of smtABOUT: so position
    // 1 is the appointment's "General" heading, and project, importance and
    // difficulty are not shown.
    [[nodiscard]] static ReportRows appointment(const TextEditor& spellTask, const Sheet& smtABOUT,
                                                const Sheet& smtReady);
    // Start, end, duration, done and time spent of every appointment in the
    // grid, by the columns' fields; nothing when the grid has no rows.
    [[nodiscard]] static std::optional<ReportRows> schedule(const Grid& gridSked);
};

}  // namespace qv
