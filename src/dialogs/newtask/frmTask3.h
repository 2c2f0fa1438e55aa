#pragma once
// The New Task dialog: a blank task (mode 0) or one started from a Task
// Catalog item (mode 6); it can also file the entry in the Task Catalog.

#include <string>

#include "toolkit/Event.h"
#include "toolkit/Form.h"

namespace qv {

class frmTask3 : public Form {
public:
    frmTask3();

    void SetupDetails();
    void setupActions();
    void SetProject(const std::string& projectKey);
    void SetProjectDefault();
    void GetTaskCatTASK();

    // Raised to clsTask2, in this order of declaration.
    Event<const std::string&> TaskCanceled;
    Event<> NewTask;
    Event<> NewTaskCATTask;
    Event<> CloseTaskForm;
    Event<const std::string&> ProjectAdded;
    Event<> KeywordAdded;
    Event<> TaskIsNewButDone;
    Event<> GotErrExitNow;
};

}  // namespace qv
