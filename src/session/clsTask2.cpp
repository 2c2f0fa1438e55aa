#include "session/clsTask2.h"

#include "dialogs/appointment/frmTAS2.h"
#include "dialogs/existingtask/frmExistingTask.h"
#include "dialogs/newtask/frmTask3.h"
#include "session/globals/SessionGlobals.h"
#include "store/ErrorPath.h"
#include "toolkit/Failure.h"
#include "toolkit/Ports.h"
#include "toolkit/Reporter.h"
#include "toolkit/Translate.h"
#include "values/settings/Settings.h"

namespace qv {

namespace {
template <typename... A>
std::vector<std::string> texts(const A&... a) {
    return {std::string(a)...};
}
}  // namespace

clsTask2::clsTask2() { g().TheTaskObject = this; }

clsTask2::~clsTask2() {
    if (reporter_) reporter_->GotErrExitNow.disconnect(reporterConnection_);
    if (reporter_ && ports().reporter == reporter_.get()) ports().reporter = nullptr;
    if (g().TheTaskObject == this) g().TheTaskObject = nullptr;
}

void clsTask2::setTempErrReport(std::shared_ptr<Reporter> reporter) {
    if (reporter_) reporter_->GotErrExitNow.disconnect(reporterConnection_);
    reporter_ = std::move(reporter);
    if (reporter_)
        reporterConnection_ = reporter_->GotErrExitNow.connect([this] { gotErrExitNow(); });
    // The error path reports to the session's reporter.
    ports().reporter = reporter_.get();
}

bool clsTask2::SetTaskPrintSetting(const std::string& str) {
    g().TaskPrintSetting = str;
    return true;
}

// Returns false although it succeeded; hosts never read it.
bool clsTask2::SetMOP(const std::string& MOP) {
    g().MOP = MOP;
    return false;
}

bool clsTask2::SetupTask(int32_t Mode, const std::string& taskGUID, const std::vector<std::string>& passUStuff,
                         int32_t DialogNum, const std::string& taskPrintDialog, const std::string& TAGUID,
                         const std::string& projGUID) {
    auto& s = g();
    if (modalDepth_ == 0) exitTold_ = false;
    // The first fault of the session is told; what it causes is not.
    FaultSession faults;
    for (std::size_t i = 0; i < s.UStuff.size(); ++i) {
        if (i >= passUStuff.size()) throw Failure(err::SubscriptOutOfRange, "Subscript out of range");
        s.UStuff[i] = passUStuff[i];
    }
    s.TaskMode = Mode;
    s.TaskPrintDialog = taskPrintDialog;
    s.DialogNum = DialogNum;

    switch (Mode) {
        case 0:
        case 6:
            openNewTask(Mode, taskGUID, projGUID);
            break;
        case 1:
        case 5:
            openExistingTask(Mode, taskGUID);
            break;
        case 2:
            openAppointment(taskGUID, TAGUID);
            break;
        default:
            break;  // 3, 4 and anything else: nothing further
    }
    return false;
}

void clsTask2::openNewTask(int32_t Mode, const std::string& taskGUID, const std::string& projGUID) {
    auto& s = g();
    if (Mode == 6) raise(2, "LoadingTask");
    frm_ = std::make_shared<frmTask3>();
    wire(*frm_);
    frm_->load();
    if (Mode == 0) {
        s.CurrentTaskGUID = taskGUID;
        s.SettingUp = true;
        s.EditingExisting = false;
        setCaption(*frm_, QV_N(" - New Task"));
    } else {
        s.SettingUp = true;
        s.TaskCatGUID = taskGUID;
        s.CurrentTaskGUID.clear();
        s.EditingExisting = true;
        setCaption(*frm_, QV_N(" - Create Task from Task Catalog Item"));
    }
    LoadSettings();
    if (errorPathTaken()) {  // the error path closed the dialog
        s.SettingUp = false;
        return;
    }
    auto form = frm_;  // the dialog may replace frm_ while it runs
    form->SetupDetails();
    if (Mode == 0) {
        form->setupActions();
        if (projGUID.empty() || projGUID == s.MOP)
            form->SetProjectDefault();
        else
            form->SetProject(projGUID);
    } else {
        form->GetTaskCatTASK();
    }
    s.SettingUp = false;
    showModal(*form);
}

void clsTask2::openExistingTask(int32_t Mode, const std::string& taskGUID) {
    auto& s = g();
    if (Mode == 5) raise(2, "LoadingTask");
    frmE_ = std::make_shared<frmExistingTask>();
    wire(*frmE_);
    frmE_->load();
    auto form = frmE_;
    if (Mode == 1) {
        raise(2, "LoadingTask");
        s.CurrentTaskGUID = taskGUID;
        s.SettingUp = true;
        s.EditingExisting = true;
        setCaption(*form, QV_N(" - Edit Task"));
        LoadSettings();
        s.SettingUp = false;
        if (errorPathTaken()) return;
        form->SetSize();
        form->SetupDetails();
    } else {
        s.SettingUp = true;
        s.CurrentTaskGUID = taskGUID;
        s.EditingExisting = true;
        setCaption(*form, QV_N(" - Create Task Catalog Item"));
        LoadSettings();
        if (!errorPathTaken()) form->SetupDetails();
        s.SettingUp = false;
    }
    showModal(*form);
}

void clsTask2::openAppointment(const std::string& taskGUID, const std::string& TAGUID) {
    auto& s = g();
    frmWorkTAS_ = std::make_shared<frmTAS2>();
    wire(*frmWorkTAS_);
    frmWorkTAS_->load();
    auto form = frmWorkTAS_;
    s.SettingUp = true;
    s.CurrentTaskGUID = taskGUID;
    s.CurrentTAGUID = TAGUID;
    LoadSettings();
    setCaption(*form, QV_N(" - Task Appointment"));
    if (!errorPathTaken()) form->SetupDetails();
    s.SettingUp = false;
    showModal(*form);
}

void clsTask2::setCaption(Form& form, const char* text) { form.setCaption(std::string(kProgramTitle) + tr(text)); }

void clsTask2::showModal(Form& form) {
    // A dialog whose setup failed went down the error path, which unloaded it.
    ++modalDepth_;
    if (form.loaded()) form.showModal();
    --modalDepth_;
    if (modalDepth_ == 0) releaseDeferred();
}

void clsTask2::raise(int32_t number, const char* name, std::vector<std::string> args) {
    HostEvent e{number, name, args};
    Raised(e);
    switch (number) {
        case 1: TASUpdated(); break;
        case 2: LoadingTask(); break;
        case 3: TaskUpdated(); break;
        case 4: TaskIsDone(); break;
        case 5: NewTask(); break;
        case 6: doNewTaskCatItem(); break;
        case 7: DoCloseTaskForm(); break;
        case 8: TASCompleted(); break;
        case 9: NewTaskIsDone(); break;
        case 10: Fire1OutlookTaskUpdate(args.at(0), args.at(1)); break;
        case 11: ProjectAdded(args.at(0)); break;
        case 12: KeywordAdded(); break;
        case 13: TaskDeleted(args.at(0)); break;
        case 14: GotErrExitNow(); break;
        case 15: updateMainPrintInfo(args.at(0), g().DialogNum); break;
        default: doUnnatDeath(); break;
    }
}

// One fault reaches the host once, though the reporter, the dialog and its
// sub-dialogs all pass it on.
void clsTask2::gotErrExitNow() {
    if (exitTold_) return;
    exitTold_ = true;
    raise(14, "GotErrExitNow");
}

void clsTask2::wire(frmTask3& f) {
    f.TaskIsNewButDone.connect([this] { raise(9, "NewTaskIsDone"); });
    f.NewTask.connect([this] { raise(5, "NewTask"); });
    f.NewTaskCATTask.connect([this] { raise(6, "doNewTaskCatItem"); });
    f.ProjectAdded.connect([this](const std::string& n) { raise(11, "ProjectAdded", texts(n)); });
    f.KeywordAdded.connect([this] { raise(12, "KeywordAdded"); });
    f.GotErrExitNow.connect([this] { gotErrExitNow(); });
    f.CloseTaskForm.connect([this] { frm_CloseTaskForm(); });
    f.TaskCanceled.connect([this](const std::string&) { frm_TaskCanceled(); });
}

void clsTask2::wire(frmExistingTask& f) {
    f.FireOneOutlookTaskUpdate.connect([this](const std::string& entryID, const std::string& taskID) {
        raise(10, "Fire1OutlookTaskUpdate", texts(entryID, taskID));
    });
    f.NewTaskCatTask.connect([this] { raise(6, "doNewTaskCatItem"); });
    // Sends the globals as they stand: the page set-up stored them first.
    f.SavePrintInfoNowHere.connect([this] {
        raise(15, "updateMainPrintInfo", texts(g().TaskPrintDialog, std::to_string(g().DialogNum)));
    });
    f.TaskIsDone.connect([this] { raise(4, "TaskIsDone"); });
    f.TaskUpdated.connect([this] { raise(3, "TaskUpdated"); });
    f.TaskDeleted.connect([this](const std::string& k) { raise(13, "TaskDeleted", texts(k)); });
    f.ProjectAdded.connect([this](const std::string& n) { raise(11, "ProjectAdded", texts(n)); });
    f.KeywordAdded.connect([this] { raise(12, "KeywordAdded"); });
    f.GotErrExitNow.connect([this] { gotErrExitNow(); });
    f.CloseTaskForm.connect([this] { frmE_CloseTaskForm(); });
    f.TaskCanceled.connect([this](const std::string&) { frmE_TaskCanceled(); });
}

void clsTask2::wire(frmTAS2& f) {
    f.TASWasChanged.connect([this] { raise(1, "TASUpdated"); });
    f.TASisDone.connect([this] { raise(8, "TASCompleted"); });
    f.GotErrExitNow.connect([this] { gotErrExitNow(); });
    f.CancelTASEdit.connect([this] { frmWorkTAS_CancelTASEdit(); });
    f.CloseTASForm.connect([this] { frmWorkTAS_CloseTASForm(); });
    f.TaskEdit.connect([this](const std::string& key) { frmWorkTAS_TaskEdit(key); });
}

// Hides only: the dialog stays loaded and frm stays set.
void clsTask2::frm_CloseTaskForm() {
    if (frm_) {
        try {
            frm_->hide();
        } catch (...) {
        }
    }
    raise(7, "DoCloseTaskForm");
}

void clsTask2::frm_TaskCanceled() {
    if (frm_) {
        frm_->hide();
        frm_->unload();
    }
    raise(7, "DoCloseTaskForm");
}

void clsTask2::frmE_CloseTaskForm() {
    if (frmE_) {
        try {
            frmE_->hide();
            frmE_->unload();
        } catch (...) {
        }
    }
    raise(7, "DoCloseTaskForm");
}

void clsTask2::frmE_TaskCanceled() {
    if (frmE_) {
        frmE_->hide();
        frmE_->unload();
    }
    raise(7, "DoCloseTaskForm");
}

// Only the appointment's reference is cleared: the Existing Task flow may
// reopen it.
void clsTask2::frmWorkTAS_CancelTASEdit() {
    if (frmWorkTAS_) {
        frmWorkTAS_->hide();
        frmWorkTAS_->unload();
        frmWorkTAS_.reset();
    }
    raise(7, "DoCloseTaskForm");
}

void clsTask2::frmWorkTAS_CloseTASForm() {
    if (!frmWorkTAS_ || !frmWorkTAS_->visible()) return;
    frmWorkTAS_->hide();
    frmWorkTAS_->unload();
    frmWorkTAS_.reset();
    raise(7, "DoCloseTaskForm");
}

// Re-enters with mode 1 while the appointment stays open; the nested
// session's globals win.
void clsTask2::frmWorkTAS_TaskEdit(const std::string& key) {
    const auto& s = g();
    std::vector<std::string> ustuff(s.UStuff.begin(), s.UStuff.end());
    SetupTask(1, key, ustuff, s.DialogNum, s.TaskPrintDialog, {}, {});
}

}  // namespace qv
