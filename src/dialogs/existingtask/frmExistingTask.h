#pragma once
// The Existing Task dialog: edits a stored task (mode 1) or makes a Task
// Catalog item from it (mode 5).

#include <string>

#include "toolkit/Event.h"
#include "toolkit/Form.h"

namespace qv {

class frmExistingTask : public Form {
public:
    frmExistingTask();

    void SetSize();
    void SetupDetails();

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
};

}  // namespace qv
