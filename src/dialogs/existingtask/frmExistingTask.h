#pragma once
// The Existing Task dialog: edits a stored task (mode 1) or makes a Task
// Catalog item from it (mode 5). The dialog holds the controls and the
// wiring; its collaborators hold the rules: fields and packing, loading,
// checks and status, the update, keywords and project, delete, the
// catalog save, and the actions.

#include <cstdint>
#include <memory>
#include <string>

#include "dialogs/existingtask/ExistingTaskControls.h"
#include "toolkit/Event.h"
#include "dialogs/shared/DialogTrap.h"
#include "toolkit/Form.h"

namespace qv {

class DraftKeeper;

class ExistingTaskFields;
class ExistingTaskLoader;
class ExistingTaskValidation;
class ExistingTaskUpdater;
class ExistingTaskKeywords;
class ExistingTaskCatalogSave;
class ExistingTaskActions;
class ChecklistLink;
class ScheduleGrid;
class ExistingTaskLayout;
class TaskPrinter;

class frmExistingTask : public Form {
public:
    frmExistingTask();
    ~frmExistingTask() override;

    void SetSize();
    void SetupDetails();
    void GetETASK();

    void PackATask();
    bool ValidateTask();
    int32_t PossTallyPoints();
    bool UpdateTask();
    bool SaveToTaskCat();
    void setCKEditMode(int16_t mode);
    [[nodiscard]] static std::string TrimtoLen(const std::string& text, std::size_t limit);

    // The schedule: the grid's source and its count (rows and Scheduled).
    void initSked();
    void CountUpSked();
    // The layout: window place, layout file and pane limits; its reset.
    void placeLayout();
    void resetLayout();
    void SetVisibleTab(int16_t tab);

    [[nodiscard]] ExistingTaskControls& controls() { return c_; }
    [[nodiscard]] ExistingTaskFields& fields() { return *fields_; }
    [[nodiscard]] ExistingTaskKeywords& keywords() { return *keywords_; }
    [[nodiscard]] ExistingTaskActions& actions() { return *actions_; }
    [[nodiscard]] ChecklistLink& checklistLink() { return *ckLink_; }
    [[nodiscard]] ScheduleGrid& schedule() { return *sked_; }
    [[nodiscard]] ExistingTaskLayout& layout() { return *layout_; }
    void setPrinter(std::shared_ptr<TaskPrinter> printer);
    [[nodiscard]] TaskPrinter& printer() { return *printer_; }

    // Raised to clsTask2, in this order of declaration.
    Event<const std::string&> TaskCanceled;
    Event<const std::string&> TaskDeleted;
    Event<> NewTaskCatTask;
    Event<> TaskUpdated;
    Event<> TaskIsDone;
    Event<> CloseTaskForm;
    Event<const std::string&, const std::string&> FireOneOutlookTaskUpdate;
    Event<const std::string&> ProjectAdded;
    Event<> KeywordAdded;
    Event<> SavePrintInfoNowHere;
    Event<> GotErrExitNow;

protected:
    void Form_Load() override;
    void Form_KeyDown(int32_t keyCode, int32_t shift) override;
    void Form_QueryUnload(bool& cancel, int32_t unloadMode) override;
    void Form_Resize() override;

private:
    void registerControls();
    void keepDrafts();
    void wireControls();
    void wireSheets();
    void wireLayout();
    void smtABOUT_Change(Tool& tool, const std::string& property);
    // Runs a handler under this dialog's trap, with the procedure's name.
    const DialogTrap trapped{"frmExistingTask"};

    ExistingTaskControls c_;
    std::unique_ptr<ExistingTaskFields> fields_;
    std::unique_ptr<ExistingTaskLoader> loader_;
    std::unique_ptr<ExistingTaskValidation> validation_;
    std::unique_ptr<ExistingTaskUpdater> updater_;
    std::unique_ptr<ExistingTaskKeywords> keywords_;
    std::unique_ptr<ExistingTaskCatalogSave> catalog_;
    std::unique_ptr<ExistingTaskActions> actions_;
    std::unique_ptr<ChecklistLink> ckLink_;
    std::unique_ptr<ScheduleGrid> sked_;
    std::unique_ptr<ExistingTaskLayout> layout_;
    std::shared_ptr<TaskPrinter> printer_;
    std::unique_ptr<DraftKeeper> drafts_;
};

}  // namespace qv
