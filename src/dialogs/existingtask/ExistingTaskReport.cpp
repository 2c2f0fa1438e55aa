#include "dialogs/existingtask/ExistingTaskReport.h"

#include "dialogs/existingtask/ScheduleGrid.h"
#include "dialogs/existingtask/frmExistingTask.h"
#include "reports/TaskReportRows.h"

namespace qv {

ReportRows ExistingTaskReport::taskRows() {
    auto& c = f_.controls();
    return TaskReportRows::existingTask(c.spellTask, c.smtABOUT, c.ctDeadline, c.smtReady);
}

const TextEditor& ExistingTaskReport::checklistEditor() const {
    return f_.controls().spellCK;
}

const TextEditor& ExistingTaskReport::notesEditor() const {
    return f_.controls().SpellNotes;
}

std::optional<ReportRows> ExistingTaskReport::scheduleRows() {
    return TaskReportRows::schedule(f_.schedule().gridSked());
}

}  // namespace qv
