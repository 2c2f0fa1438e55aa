#include "dialogs/appointment/AppointmentActions.h"

#include "dialogs/appointment/frmTAS2.h"
#include "dialogs/shared/DialogMessages.h"
#include "dialogs/shared/TaskDialogTools.h"
#include "dialogs/shared/StatusWords.h"
#include "session/globals/SessionGlobals.h"
#include "toolkit/Ports.h"
#include "toolkit/Translate.h"
#include "values/settings/TimeValues.h"

namespace qv {

namespace {
const char* const kCancelQuestion = QV_N("Cancel update the current task appointment?");
constexpr int32_t kHelpTopic = 700;
}  // namespace

void AppointmentActions::smtActions_Click(Tool& tool) {
    const std::string& key = tool.key();
    if (key == "EDIT") editTask();
    else if (key == "CANCEL") {
        f_.StopTHETimer();
        f_.CancelTASEdit();
    } else if (key == "SAVE") save();
    else TaskDialogTools(f_.printer(), kHelpTopic).run(key);
}

// Nothing sets the flags, so nothing is saved before the task opens. The
// task opens in a nested Existing Task dialog while this one still stands.
void AppointmentActions::editTask() {
    if (f_.SaveBeforeEdit[0] || f_.SaveBeforeEdit[1]) f_.UpdateTASTask();
    f_.TaskEdit(f_.TATaskGUID);
    f_.CloseTASForm();
}

// A refused save leaves SettingUp raised: the change handlers stay quiet
// until the page set-up or the copy buttons.
void AppointmentActions::save() {
    g().SettingUp = true;
    if (!f_.UpdateTASTask()) return;
    f_.TASWasChanged();
    f_.CloseTASForm();
}

void AppointmentActions::smtReady_Click(Tool& tool) {
    if (g().SettingUp || tool.key() != "DONE") return;
    auto& c = f_.controls();
    Tool& status = c.smtABOUT.tool("STATUS");
    const bool done = tool.checked();
    status.setText(done ? StatusWords::word(StatusWords::kCompleted) : StatusWords::word(StatusWords::kDefined));
    status.setTag(std::to_string(done ? StatusWords::kCompleted : StatusWords::kDefined));
    status.setBold(done);
    f_.StopTHETimer();
    c.smtTimes.tool("DONE").setText(done ? tr("Complete") : tr("Not Complete"));
    Tool& spent = c.smtTimes.tool("TIMESPENT");
    if (done && (spent.text() == "0:00" || spent.text().empty() || !IsTime(spent.text())))
        spent.setText(f_.getTATimeNeeded());
    c.smtActions.tool("SAVE").setEnabled(true);
}

// Enter closes even when the save was refused, and tells no change.
void AppointmentActions::Form_KeyDown(int32_t keyCode) {
    if (keyCode == vbKeyReturn) {
        g().SettingUp = true;
        // Only a No to overwriting another user's change keeps the dialog.
        if (!f_.UpdateTASTask() && f_.OverwriteDeclined) return;
        f_.CloseTASForm();
    } else if (keyCode == vbKeyEscape) {
        f_.StopTHETimer();
        f_.CancelTASEdit();
    }
}

// Only the close box asks, and only with something to update.
bool AppointmentActions::Form_QueryUnload(int32_t unloadMode) {
    if (unloadMode == 0 && f_.controls().smtActions.tool("SAVE").enabled())
        return DialogMessages::askYesNo(tr(kCancelQuestion));
    return true;
}

}  // namespace qv
