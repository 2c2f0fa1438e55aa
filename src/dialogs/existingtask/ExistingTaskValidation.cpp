#include "dialogs/existingtask/ExistingTaskValidation.h"

#include <cmath>

#include "dialogs/existingtask/ExistingTaskFields.h"
#include "dialogs/existingtask/frmExistingTask.h"
#include "dialogs/shared/DialogMessages.h"
#include "dialogs/shared/PointsTally.h"
#include "dialogs/shared/SettingUp.h"
#include "session/globals/SessionGlobals.h"
#include "toolkit/Clock.h"
#include "toolkit/Ports.h"
#include "toolkit/Translate.h"
#include "values/types/TaskUtil.h"
#include "values/types/TextChars.h"
#include "values/settings/TimeValues.h"

namespace qv {

namespace {
constexpr std::size_t kDescriptionLimit = 256;
const char* const kCompleted = "Completed";
}  // namespace

bool ExistingTaskValidation::ValidateTask() {
    auto& fields = f_.fields();
    fields.PackATask();
    PossTallyPoints();
    const TaskRecord& r = fields.record();
    bool ok = checkDeadTime();
    if (r.Desc.empty() || charCount(r.Desc) >= kDescriptionLimit) ok = false;
    // On the name, which never holds "NOPROJECT": an unset project passes.
    if (r.Project == "NOPROJECT") {
        DialogMessages::inform(tr("Missing Task's Project."));
        ok = false;
    }
    if (r.Status == kNothingChosen) {
        DialogMessages::inform(tr("Missing Task's Status."));
        ok = false;
    }
    for (int32_t n : {r.Imp, r.Diff, r.TimeNeeded, r.TimeSpent})
        if (n == kNothingChosen) ok = false;
    auto& actions = f_.controls().smtActions;
    actions.tool("UPDATE").setEnabled(ok);
    // "D&one" stays once a check has passed, also after a later failure.
    if (ok) actions.tool("DONE").setCaption(tr("D&one"));
    fields.IsDirty = ok;
    actions.tool("DONE").setEnabled(true);
    return ok;
}

bool ExistingTaskValidation::checkDeadTime() const {
    const std::string text = f_.controls().smtABOUT.tool("DEADTIME").text();
    if (text.empty() || IsTime(text)) return true;
    DialogMessages::inform(tr("Deadline Time needs to be a recognizable time."));
    return false;
}

// The tally follows the pack, so the record's points trail by one check;
// the save reads the slot.
int32_t ExistingTaskValidation::PossTallyPoints() {
    const TaskRecord& r = f_.fields().record();
    const int32_t points = PointsTally::tally(r);
    f_.controls().smtReady.tool("POINTS").setCaption(std::to_string(points));
    f_.fields().utilPossPoints = points;
    return points;
}

bool ExistingTaskValidation::statusChanged(Tool& tool) {
    if (tool.key() != "STATUS") return false;
    auto& c = f_.controls();
    const bool completed = tool.text() == kCompleted;
    {
        SettingUp raised;
        c.smtReady.tool("DONE").setChecked(completed);
        Tool& dateDone = c.smtABOUT.tool("DATEDONE");
        if (completed) {
            dateDone.setHostedControl("cttheDateDone");
            c.ctTheDateDone.setValue(std::floor(clock().now()));
        } else {
            c.ctTheDateDone.setValue(1.0);
        }
        dateDone.setVisible(completed);
        if (Tool* chosen = GetItemSelected(tool)) tool.setTag(chosen->tag());
    }
    ValidateTask();
    f_.fields().IsDirty = true;
    return true;
}

bool ExistingTaskValidation::levelChanged(Tool& tool) {
    if (tool.key() != "IMP" && tool.key() != "DIFF") return false;
    if (Tool* chosen = GetItemSelected(tool)) tool.setTag(chosen->tag());
    return true;
}

void ExistingTaskValidation::smtABOUT_Click() {
    if (g().SettingUp) return;
    ValidateTask();
    f_.fields().IsDirty = true;
}

// Unchecking does nothing; checking goes through the status change.
void ExistingTaskValidation::smtReady_Click(Tool& tool) {
    if (g().SettingUp || tool.key() != "DONE" || !tool.checked()) return;
    auto& c = f_.controls();
    Tool& status = c.smtABOUT.tool("STATUS");
    status.setText(kCompleted);
    status.setTag("0");
    status.setBold(true);
    c.smtActions.tool("UPDATE").setEnabled(true);
}

void ExistingTaskValidation::textChanged() {
    if (g().SettingUp) return;
    ValidateTask();
    f_.fields().IsDirty = true;
}

void ExistingTaskValidation::ctDeadline_Change() { ValidateTask(); }

}  // namespace qv
