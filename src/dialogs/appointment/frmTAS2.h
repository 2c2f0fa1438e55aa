#pragma once
// The Task Appointment dialog: works one scheduled slot of a task (mode 2).

#include <string>

#include "toolkit/Event.h"
#include "toolkit/Form.h"

namespace qv {

class frmTAS2 : public Form {
public:
    frmTAS2();

    void SetupDetails();

    // Raised to clsTask2; the numbers follow the declaration (2 is unused).
    Event<const std::string&> TaskEdit;
    Event<> CloseTASForm;
    Event<> TASisDone;
    Event<> CancelTASEdit;
    Event<> TASWasChanged;
    Event<> GotErrExitNow;
};

}  // namespace qv
