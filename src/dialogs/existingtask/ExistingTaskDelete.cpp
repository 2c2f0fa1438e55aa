#include "dialogs/existingtask/ExistingTaskDelete.h"

#include "dialogs/existingtask/ExistingTaskFields.h"
#include "dialogs/existingtask/frmExistingTask.h"
#include "session/globals/SessionGlobals.h"
#include "toolkit/Ports.h"
#include "toolkit/Translate.h"
#include "toolkit/Ui.h"

namespace qv {

// The schedule flag of a packed record is always false, so the two longer
// questions wait for a record that says otherwise.
std::string ExistingTaskDelete::question(bool hasChecklist, bool hasSchedule) {
    if (!hasChecklist && !hasSchedule) return tr("Delete this task?");
    if (!hasChecklist) return tr("Delete this task and all its Task Appointments?");
    if (!hasSchedule) return tr("Delete this task and its Checklist?");
    return tr("Delete this task, all its Task Appointments and its Checklist?");
}

// Neither the dirty flag nor a check stands in the way; No leaves all as it was.
void ExistingTaskDelete::deleteTask() {
    const TaskRecord& r = f_.fields().record();
    const int32_t answer = ui().msgBox(question(r.HasChecklist, r.HasSchedule), vbYesNo | vbInformation, kProgramTitle);
    if (answer != vbYes) return;
    const std::string key = g().CurrentTaskGUID;
    f_.TaskDeleted(key);
    f_.TaskCanceled(key);
    f_.CloseTaskForm();
}

}  // namespace qv
