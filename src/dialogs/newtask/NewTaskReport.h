#pragma once
// What the New Task dialog prints: ten rows about the task not yet saved,
// its checklist and its notes; no schedule.

#include "reports/ReportSource.h"

namespace qv {

class frmTask3;

class NewTaskReport : public ReportSource {
public:
    explicit NewTaskReport(frmTask3& f) : f_(f) {}

    [[nodiscard]] ReportRows taskRows() override;
    [[nodiscard]] const TextEditor& checklistEditor() const override;
    [[nodiscard]] const TextEditor& notesEditor() const override;

private:
    frmTask3& f_;
};

}  // namespace qv
