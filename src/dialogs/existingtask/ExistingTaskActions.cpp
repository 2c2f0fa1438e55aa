#include "dialogs/existingtask/ExistingTaskActions.h"

#include "dialogs/existingtask/ExistingTaskDelete.h"
#include "dialogs/existingtask/ExistingTaskFields.h"
#include "dialogs/existingtask/frmExistingTask.h"
#include "dialogs/shared/DialogMessages.h"
#include "dialogs/shared/StopwatchTool.h"
#include "dialogs/shared/TaskDialogTools.h"
#include "dialogs/shared/TimeSpentEdit.h"
#include "session/globals/SessionGlobals.h"
#include "toolkit/Ports.h"
#include "toolkit/Translate.h"
#include "toolkit/Ui.h"
#include "values/settings/StopwatchDisplay.h"
#include "values/settings/TimeValues.h"
#include "values/settings/WindowGeometry.h"

namespace qv {

namespace {
constexpr int32_t kHelpTopic = 601;
const char* const kDiscardTask = QV_N("Discard changes made to this Task?");
const char* const kCancelUpdating = QV_N("Cancel updating the current task?");

bool ask(const std::string& text, int32_t icon) { return ui().msgBox(text, vbYesNo | icon, kProgramTitle) == vbYes; }
}  // namespace

ExistingTaskActions::ExistingTaskActions(frmExistingTask& f)
    : f_(f), stopwatch_(std::make_unique<StopwatchDisplay>(f.controls().smtTimes.tool("TIMER"), f.controls().Timer1)) {}

ExistingTaskActions::~ExistingTaskActions() = default;

void ExistingTaskActions::smtActions_Click(Tool& tool) {
    const std::string& key = tool.key();
    if (key == "RESETL") f_.resetLayout();
    else if (key == "DONE") leave();
    else if (key == "UPDATE") save(false);
    else if (key == "DELETE") ExistingTaskDelete(f_).deleteTask();
    else TaskDialogTools(f_.printer(), kHelpTopic).run(key);
}

void ExistingTaskActions::save(bool byKey) {
    const int32_t mode = g().TaskMode;
    if (mode == 1) {
        if (!f_.UpdateTask()) return;
        if (f_.fields().record().Status != 0) {
            if (!byKey) ui().doEvents();
            f_.TaskUpdated();
        } else {
            f_.TaskIsDone();
        }
    } else if (mode == 5) {
        if (!f_.SaveToTaskCat()) return;
        if (byKey) f_.TaskUpdated();
        else f_.NewTaskCatTask();
    } else {
        return;
    }
    f_.controls().smtActions.tool("UPDATE").setEnabled(false);
    f_.TaskCanceled(g().CurrentTaskGUID);
    f_.CloseTaskForm();
}

// The checklist questions stay, though nothing sets CheckListChanged today.
bool ExistingTaskActions::leave() {
    const auto& ck = f_.fields().checklist;
    if (ck.CheckListMode == 1 && ck.CheckListChanged) {
        if (!ask(tr("Discard new Checklist?"), 0)) return false;
    } else if (ck.CheckListMode == 2 && ck.CheckListChanged) {
        if (!ask(tr("Discard changes in Checklist?"), vbQuestion)) return false;
    }
    if (f_.controls().smtActions.tool("UPDATE").enabled() && f_.fields().IsDirty)
        if (!ask(tr(kDiscardTask), vbQuestion)) return false;
    f_.TaskCanceled(g().CurrentTaskGUID);
    f_.CloseTaskForm();
    return true;
}

// Enter saves whether or not "UPDATE" is enabled: the check inside decides.
void ExistingTaskActions::Form_KeyDown(int32_t keyCode, bool& swallowed) {
    if (keyCode == vbKeyReturn) {
        save(true);
        swallowed = true;
    } else if (keyCode == vbKeyEscape) {
        swallowed = leave();
    }
}

// The close box asks its own question, tests only "UPDATE" and tells no
// TaskCanceled.
void ExistingTaskActions::Form_QueryUnload(bool& cancel, int32_t unloadMode) {
    if (unloadMode == 0 && f_.controls().smtActions.tool("UPDATE").enabled() && !ask(tr(kCancelUpdating), 0)) {
        cancel = true;
        return;
    }
    stopStopwatch();
    f_.fields().closeTaskRow();
    WindowGeometry::forExistingTask(f_).onClose();
}

void ExistingTaskActions::stopStopwatch() { f_.controls().Timer1.setEnabled(false); }

void ExistingTaskActions::enableUpdate() { f_.controls().smtActions.tool("UPDATE").setEnabled(true); }

// "ADDFROMTIMER" reads the clock text, whose two colons make it 0: the
// total stays as it was, also with the stopwatch running.
void ExistingTaskActions::smtTimes_Click(Tool& tool) {
    auto& c = f_.controls();
    const std::string& key = tool.key();
    if (key == "TIMER") {
        StopwatchTool::toggle(tool, *stopwatch_);
    } else if (key == "COPYTIMENEEDED") {
        const std::string needed = c.smtABOUT.tool("NEEDED").text();
        c.smtABOUT.tool("SPENT").setText(needed);
        c.smtTimes.tool("TIMESPENT").setText(needed);
    } else if (key == "ADDFROMTIMER") {
        Tool& spent = c.smtTimes.tool("TIMESPENT");
        spent.setText(StopwatchTool::addReading(c.smtTimes.tool("TIMER").text(), spent.text()));
        c.smtABOUT.tool("SPENT").setText(spent.text());
    } else {
        return;
    }
    enableUpdate();
}

void ExistingTaskActions::smtTimes_Change() { enableUpdate(); }

void ExistingTaskActions::smtTimes_AfterEdit(Tool& tool) {
    if (!TimeSpentEdit::take(tool, f_.controls().smtABOUT)) return;
    f_.ValidateTask();
    f_.fields().IsDirty = true;
    enableUpdate();
}

void ExistingTaskActions::Timer2_Timer() {
    f_.SetVisibleTab(f_.fields().VisibleTab);
    f_.controls().Timer2.setEnabled(false);
}

}  // namespace qv
