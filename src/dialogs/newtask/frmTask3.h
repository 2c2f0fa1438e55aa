#pragma once
// The New Task dialog: a blank task (mode 0) or one started from a Task
// Catalog item (mode 6); it can also file the entry in the Task Catalog.
// The dialog holds the controls and the wiring; its collaborators hold the
// rules: fields and packing, checks, saving, the catalog item, the actions,
// the pickers and the layout.

#include <cstdint>
#include <memory>
#include <string>

#include "dialogs/newtask/NewTaskControls.h"
#include "toolkit/Event.h"
#include "dialogs/shared/DialogTrap.h"
#include "toolkit/Form.h"

namespace qv {

class NewTaskFields;
class NewTaskValidation;
class NewTaskSaver;
class NewTaskCatalogItem;
class NewTaskActions;
class NewTaskPickers;
class NewTaskLayout;
class TaskPrinter;
class ChecklistLink;
class DraftKeeper;

class frmTask3 : public Form {
public:
    frmTask3();
    ~frmTask3() override;

    void SetupDetails();
    void setupActions();
    void SetProject(const std::string& projectKey);
    void SetProjectDefault();
    bool GetTaskCatTASK();

    void PackATask();
    bool ValidateTask();
    bool SaveTask();
    // 0: no checklist; 1 or 2: a checklist is linked; other values change nothing.
    void setCKEditMode(int16_t mode);
    [[nodiscard]] int16_t CheckListMode() const;
    // The text cut to limit characters and "...", when it is longer.
    [[nodiscard]] static std::string TrimtoLen(const std::string& text, std::size_t limit);

    [[nodiscard]] NewTaskControls& controls() { return c_; }
    [[nodiscard]] NewTaskFields& fields() { return *fields_; }
    // Where print commands go; the report flow installs its own.
    void setPrinter(std::shared_ptr<TaskPrinter> printer);
    [[nodiscard]] TaskPrinter& printer() { return *printer_; }
    void resetLayout();
    [[nodiscard]] ChecklistLink& checklistLink() { return *ckLink_; }

    // Raised to clsTask2, in this order of declaration.
    Event<const std::string&> TaskCanceled;
    Event<> NewTask;
    Event<> NewTaskCATTask;
    Event<> CloseTaskForm;
    Event<const std::string&> ProjectAdded;
    Event<> KeywordAdded;
    Event<> TaskIsNewButDone;
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
    void startTimer_Timer();
    void fillLevelSheets();
    void setSpellChecking();
    // Runs a handler under this dialog's trap, with the procedure's name.
    const DialogTrap trapped{"frmTask3"};

    NewTaskControls c_;
    std::unique_ptr<NewTaskFields> fields_;
    std::unique_ptr<NewTaskValidation> validation_;
    std::unique_ptr<NewTaskSaver> saver_;
    std::unique_ptr<NewTaskCatalogItem> catalog_;
    std::unique_ptr<NewTaskActions> actions_;
    std::unique_ptr<NewTaskPickers> pickers_;
    std::unique_ptr<NewTaskLayout> layout_;
    std::unique_ptr<ChecklistLink> ckLink_;
    std::shared_ptr<TaskPrinter> printer_;
    std::unique_ptr<DraftKeeper> drafts_;
};

}  // namespace qv
