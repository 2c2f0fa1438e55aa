#include "dialogs/newtask/NewTaskActions.h"

#include "dialogs/newtask/NewTaskFields.h"
#include "dialogs/newtask/frmTask3.h"
#include "dialogs/shared/DialogMessages.h"
#include "dialogs/shared/SettingUp.h"
#include "dialogs/shared/TaskDialogTools.h"
#include "dialogs/shared/SheetPicks.h"
#include "session/globals/SessionGlobals.h"
#include "toolkit/Ports.h"
#include "toolkit/Translate.h"
#include "toolkit/Ui.h"

namespace qv {

namespace {
const char* const kCancelQuestion = QV_N("Cancel creating the current task?");
constexpr int32_t kHelpTopic = 600;

// Keys and clicks that come while a task is added wait until the dialog
// stands reset for the next one: an Escape then finds nothing to ask about.
class InputHeld {
public:
    InputHeld() { ui().holdInput(true); }
    ~InputHeld() { ui().holdInput(false); }
    InputHeld(const InputHeld&) = delete;
    InputHeld& operator=(const InputHeld&) = delete;
};
}  // namespace

void NewTaskActions::smtActions_Click(Tool& tool) {
    const std::string& key = tool.key();
    if (key == "RESETL") f_.resetLayout();
    else if (key == "CLEAR") clearAll();
    else if (key == "DONE") closeOrCancel();
    else if (key == "TC") addToCatalog();
    else if (key == "QV" || key == "QV2") addToTaskList();
    else TaskDialogTools(f_.printer(), kHelpTopic).run(key);
}

// Enter saves to the task list and always tells NewTask, whatever the status.
void NewTaskActions::Form_KeyDown(int32_t keyCode) {
    if (keyCode == vbKeyReturn) {
        g().TaskMode = 0;
        f_.PackATask();
        InputHeld held;
        if (f_.SaveTask()) {
            f_.NewTask();
            afterAdd();
        }
    } else if (keyCode == vbKeyEscape) {
        if (dirty() && !DialogMessages::askYesNo(tr(kCancelQuestion))) return;
        f_.TaskCanceled(g().CurrentTaskGUID);
    }
}

// Only the close box asks; the program's own unloads go straight on.
void NewTaskActions::Form_QueryUnload(bool& cancel, int32_t unloadMode) {
    if (unloadMode == 0 && dirty() && !DialogMessages::askYesNo(tr(kCancelQuestion))) cancel = true;
}

// A task born completed reaches the host by its own event.
void NewTaskActions::addToTaskList() {
    g().TaskMode = 0;
    f_.PackATask();
    const int32_t status = f_.fields().utilStatus();
    InputHeld held;
    if (!f_.SaveTask()) return;
    if (status == 0) f_.TaskIsNewButDone();
    else f_.NewTask();
    ui().doEvents();
    afterAdd();
}

void NewTaskActions::addToCatalog() {
    g().TaskMode = 5;
    f_.PackATask();
    InputHeld held;
    if (!f_.SaveTask()) return;
    f_.NewTaskCATTask();
    afterAdd();
}

void NewTaskActions::afterAdd() {
    auto& actions = f_.controls().smtActions;
    for (const char* key : {"QV", "QV2", "TC"}) actions.tool(key).setEnabled(false);
    actions.tool("DONE").setCaption(tr("D&one"));
}

void NewTaskActions::closeOrCancel() {
    Tool& done = f_.controls().smtActions.tool("DONE");
    if (dirty()) {
        if (!DialogMessages::askYesNo(tr(kCancelQuestion))) return;
        done.setCaption(tr("Done"));
    }
    f_.TaskCanceled(g().CurrentTaskGUID);
}

// No check runs: flags, points and add tools keep their last state.
void NewTaskActions::clearAll() {
    auto& c = f_.controls();
    SettingUp raised;
    for (Sheet* sheet : {&c.smtProj, &c.smtTimeNeeded, &c.smtImp, &c.smtDiff}) SheetPicks::uncheckAll(*sheet);
    if (Tool* custom = c.smtTimeNeeded.find("CUSTOMTIME")) custom->setText("");
    c.SpellNotes.setText("");
    c.spellTask.setText("");
    SheetPicks::uncheckAll(c.smtKeywords);
    f_.setCKEditMode(0);
}

bool NewTaskActions::dirty() const { return f_.controls().smtActions.tool("DONE").caption() == tr("C&ancel"); }

}  // namespace qv
