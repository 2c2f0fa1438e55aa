#pragma once
// A report source made of a dialog's parts: its checklist and notes
// editors, the function that reads its task table and, for the Existing
// Task, the one that reads its schedule.

#include <functional>

#include "reports/ReportSource.h"

namespace qv {

class DialogReportSource : public ReportSource {
public:
    using Rows = std::function<ReportRows()>;
    using Schedule = std::function<std::optional<ReportRows>()>;

    DialogReportSource(const TextEditor& checklist, const TextEditor& notes, Rows rows,
                       Schedule schedule = {})
        : checklist_(checklist), notes_(notes), rows_(std::move(rows)), schedule_(std::move(schedule)) {}

    [[nodiscard]] ReportRows taskRows() override { return rows_(); }
    [[nodiscard]] const TextEditor& checklistEditor() const override { return checklist_; }
    [[nodiscard]] const TextEditor& notesEditor() const override { return notes_; }
    [[nodiscard]] bool hasSchedule() const override { return static_cast<bool>(schedule_); }
    [[nodiscard]] std::optional<ReportRows> scheduleRows() override { return schedule_(); }

private:
    const TextEditor& checklist_;
    const TextEditor& notes_;
    Rows rows_;
    Schedule schedule_;
};

}  // namespace qv
