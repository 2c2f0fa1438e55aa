#pragma once
// The time controls of the Task Appointment dialog: the stopwatch on the
// times sheet, the copy of the slot's length and of the stopwatch's reading
// into Time Spent, typed times judged at once, and the picks of the About
// sheet moving their number into the tool's tag.

#include <string>

#include "values/settings/StopwatchDisplay.h"

namespace qv {

class frmTAS2;
class Tool;

class AppointmentTimes {
public:
    explicit AppointmentTimes(frmTAS2& f);

    void StartTHETimer() { stopwatch_.StartTHETimer(); }
    void StopTHETimer() { stopwatch_.StopTHETimer(); }

    void smtTimes_Click(Tool& tool);
    void smtTimes_BeforeEdit(Tool& tool, bool& cancel);
    void smtTimes_AfterEdit(Tool& tool);
    void smtTimes_Change(Tool& tool);
    void smtABOUT_Change(Tool& tool);

private:
    void enableSave();

    frmTAS2& f_;
    StopwatchDisplay stopwatch_;
};

}  // namespace qv
