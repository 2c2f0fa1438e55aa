#pragma once
// The Task Appointment dialog: works one scheduled slot of a task (mode 2).
// It shows the slot's own values beside what its task says of itself, lets
// the user complete the slot, time it with the stopwatch and change the
// task in passing. The dialog holds the controls, its state and the wiring;
// its collaborators hold the rules: loading, checks and saving, the time
// controls, the actions and the layout.

#include <cstdint>
#include <memory>
#include <string>

#include "dialogs/appointment/AppointmentControls.h"
#include "dialogs/checklists/ChecklistLink.h"
#include "toolkit/Event.h"
#include "dialogs/shared/DialogTrap.h"
#include "toolkit/Form.h"

namespace qv {

class DraftKeeper;

class AppointmentLoader;
class AppointmentSaver;
class AppointmentTimes;
class AppointmentActions;
class AppointmentLayout;
class Recordset;
class TaskPrinter;

class frmTAS2 : public Form {
public:
    frmTAS2();
    ~frmTAS2() override;

    void SetupDetails();
    void GetTAS();
    bool ValidateTask();
    // The text argument is passed empty and not used.
    bool UpdateTASTask(const std::string& unused = {});
    void StartTHETimer();
    void StopTHETimer();
    void SetVisibleTab(int32_t index);
    // The slot's length from "START" to "END" as the sheet shows it.
    [[nodiscard]] std::string getTATimeNeeded();
    // 0: no checklist; 1: a checklist is linked; other values change nothing.
    void setCKEditMode(int16_t mode);
    [[nodiscard]] static std::string TrimtoLen(const std::string& text, std::size_t limit);
    // The checklist as the user left it, into TACheckListGUID: a key the
    // user linked, or "-NONE" for one removed. A lost checklist keeps its key.
    void followChecklist();
    // The checklist key as GetTAS linked it.
    void setLoadedChecklistKey(const std::string& key) { loadedChecklistKey_ = key; }

    [[nodiscard]] AppointmentControls& controls() { return c_; }
    [[nodiscard]] ChecklistLink& checklistLink() { return *ckLink_; }
    // Where print commands go; the report flow installs its own.
    void setPrinter(std::shared_ptr<TaskPrinter> printer);
    [[nodiscard]] TaskPrinter& printer() { return *printer_; }

    // The key of the task that owns the slot; empty until GetTAS read the row.
    std::string TATaskGUID;
    // The task's checklist key as loaded, a newly linked key, or "-NONE"
    // once the user removed it; empty when there is none.
    std::string TACheckListGUID;
    ChecklistState checklist;
    // The slot's row and its task's row as GetTAS read them, kept until the
    // save: what the user changed is told against these.
    std::shared_ptr<Recordset> SlotRow;
    std::shared_ptr<Recordset> TaskRow;
    // The user answered No to overwriting another user's change: the
    // dialog stays open with what was typed.
    bool OverwriteDeclined = false;
    // Read by "EDIT" before it opens the task; nothing sets them.
    bool SaveBeforeEdit[2] = {false, false};
    int32_t currentTab = tabChecklist;

    // Raised to clsTask2; the numbers follow the declaration (2 is unused).
    Event<const std::string&> TaskEdit;
    Event<> CloseTASForm;
    Event<> TASisDone;
    Event<> CancelTASEdit;
    Event<> TASWasChanged;
    Event<> GotErrExitNow;

protected:
    void Form_Load() override;
    void Form_KeyDown(int32_t keyCode, int32_t shift) override;
    void Form_QueryUnload(bool& cancel, int32_t unloadMode) override;
    void Form_Unload() override;
    void Form_Resize() override;

private:
    void registerControls();
    void keepDrafts();
    void wireControls();
    void wireSheets();
    // Runs a handler under this dialog's trap, with the procedure's name.
    const DialogTrap trapped{"frmTAS2"};

    AppointmentControls c_;
    std::unique_ptr<AppointmentLoader> loader_;
    std::unique_ptr<AppointmentSaver> saver_;
    std::unique_ptr<AppointmentTimes> times_;
    std::unique_ptr<AppointmentActions> actions_;
    std::unique_ptr<AppointmentLayout> layout_;
    std::unique_ptr<ChecklistLink> ckLink_;
    std::shared_ptr<TaskPrinter> printer_;
    std::string loadedChecklistKey_;
    bool geometrySaved_ = false;
    std::unique_ptr<DraftKeeper> drafts_;
};

}  // namespace qv
