#include "dialogs/appointment/AppointmentReport.h"

#include "dialogs/appointment/frmTAS2.h"
#include "reports/TaskReportRows.h"

namespace qv {

ReportRows AppointmentReport::taskRows() {
    auto& c = f_.controls();
    return TaskReportRows::appointment(c.spellTask, c.smtABOUT, c.smtReady);
}

const TextEditor& AppointmentReport::checklistEditor() const { return f_.controls().spellCK; }

const TextEditor& AppointmentReport::notesEditor() const { return f_.controls().SpellNotes; }

}  // namespace qv
