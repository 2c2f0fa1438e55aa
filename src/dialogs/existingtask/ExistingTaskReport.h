#pragma once
// What the Existing Task dialog prints: twelve rows about the task, its
// checklist and notes, and the schedule from its grid.

#include "reports/ReportSource.h"

namespace qv {

class frmExistingTask;

class ExistingTaskReport : public ReportSource {
public:
    explicit ExistingTaskReport(frmExistingTask& f) : f_(f) {}

    [[nodiscard]] ReportRows taskRows() override;
    [[nodiscard]] const TextEditor& checklistEditor() const override;
    [[nodiscard]] const TextEditor& notesEditor() const override;
    [[nodiscard]] bool hasSchedule() const override { return true; }
    [[nodiscard]] std::optional<ReportRows> scheduleRows() override;

private:
    frmExistingTask& f_;
};

}  // namespace qv
