#pragma once
// What the Task Appointment dialog prints: eight rows about the task from
// its About sheet, its checklist and its notes; no schedule.

#include "reports/ReportSource.h"

namespace qv {

class frmTAS2;

class AppointmentReport : public ReportSource {
public:
    explicit AppointmentReport(frmTAS2& f) : f_(f) {}

    [[nodiscard]] ReportRows taskRows() override;
    [[nodiscard]] const TextEditor& checklistEditor() const override;
    [[nodiscard]] const TextEditor& notesEditor() const override;

private:
    frmTAS2& f_;
};

}  // namespace qv
