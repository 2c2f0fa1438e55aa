#pragma once
// The entry object a host creates: it opens one task dialog per SetupTask
// and tells the host what happened through its sixteen events.

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "Export.h"
#include "toolkit/Event.h"

namespace qv {

class frmTask3;
class frmExistingTask;
class frmTAS2;
class Reporter;

// One raised host event, for hosts and scripts that log them all.
struct QV_EXPORT HostEvent {
    int32_t number = 0;
    std::string name;
    std::vector<std::string> args;
};

class QV_EXPORT clsTask2 {
public:
    clsTask2();
    ~clsTask2();
    clsTask2(const clsTask2&) = delete;
    clsTask2& operator=(const clsTask2&) = delete;

    [[nodiscard]] std::shared_ptr<Reporter> tempErrReport() const { return reporter_; }
    // Also becomes the reporter that the error path tells of faults.
    void setTempErrReport(std::shared_ptr<Reporter> reporter);

    bool SetTaskPrintSetting(const std::string& str);
    bool SetMOP(const std::string& MOP);
    // Blocks for the life of the dialog; always false: the host learns the
    // outcome from the events. Fewer than six passUStuff slots throw.
    bool SetupTask(int32_t Mode, const std::string& taskGUID, const std::vector<std::string>& passUStuff,
                   int32_t DialogNum, const std::string& taskPrintDialog, const std::string& TAGUID = {},
                   const std::string& projGUID = {});

    // The dialogs of the last sessions (empty until created).
    [[nodiscard]] const std::shared_ptr<frmTask3>& frm() const { return frm_; }
    [[nodiscard]] const std::shared_ptr<frmExistingTask>& frmE() const { return frmE_; }
    [[nodiscard]] const std::shared_ptr<frmTAS2>& frmWorkTAS() const { return frmWorkTAS_; }

    // The sixteen events, in their order on the wire.
    Event<> TASUpdated;
    Event<> LoadingTask;
    Event<> TaskUpdated;
    Event<> TaskIsDone;
    Event<> NewTask;
    Event<> doNewTaskCatItem;
    Event<> DoCloseTaskForm;
    Event<> TASCompleted;
    Event<> NewTaskIsDone;
    Event<const std::string&, const std::string&> Fire1OutlookTaskUpdate;
    Event<const std::string&> ProjectAdded;
    Event<> KeywordAdded;
    Event<const std::string&> TaskDeleted;
    Event<> GotErrExitNow;
    Event<const std::string&, int32_t> updateMainPrintInfo;
    Event<> doUnnatDeath;

    // Every one of the sixteen as it is raised.
    Event<const HostEvent&> Raised;

private:
    void raise(int32_t number, const char* name, std::vector<std::string> args = {});
    void gotErrExitNow();

    void openNewTask(int32_t Mode, const std::string& taskGUID, const std::string& projGUID);
    void openExistingTask(int32_t Mode, const std::string& taskGUID);
    void openAppointment(const std::string& taskGUID, const std::string& TAGUID);
    void setCaption(class Form& form, const char* text);
    void showModal(class Form& form);

    void wire(frmTask3& f);
    void wire(frmExistingTask& f);
    void wire(frmTAS2& f);

    void frm_CloseTaskForm();
    void frm_TaskCanceled();
    void frmE_CloseTaskForm();
    void frmE_TaskCanceled();
    void frmWorkTAS_CancelTASEdit();
    void frmWorkTAS_CloseTASForm();
    void frmWorkTAS_TaskEdit(const std::string& key);

    std::shared_ptr<frmTask3> frm_;
    std::shared_ptr<frmExistingTask> frmE_;
    std::shared_ptr<frmTAS2> frmWorkTAS_;
    std::shared_ptr<Reporter> reporter_;
    std::size_t reporterConnection_ = 0;
    int modalDepth_ = 0;
    bool exitTold_ = false;  // GotErrExitNow already raised in this session
};

}  // namespace qv
