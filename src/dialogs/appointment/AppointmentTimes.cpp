#include "dialogs/appointment/AppointmentTimes.h"

#include "dialogs/appointment/frmTAS2.h"
#include "dialogs/shared/DialogMessages.h"
#include "dialogs/shared/StopwatchTool.h"
#include "dialogs/shared/TimeSpentEdit.h"
#include "session/globals/SessionGlobals.h"
#include "toolkit/Sheet.h"
#include "toolkit/Translate.h"
#include "values/types/TaskUtil.h"
#include "values/settings/TimeValues.h"

namespace qv {

namespace {
const char* const kScheduledIsSum = QV_N("Time Scheduled is the sum of each Tasks' Task Appointments.");

// The About tool a pick's key prefix names.
const char* toolOfPrefix(const std::string& prefix) {
    if (prefix == "IMP") return "IMP";
    if (prefix == "DIF") return "DIFF";
    if (prefix == "PRJ") return "PROJECT";
    if (prefix == "STA") return "STATUS";
    if (prefix == "CUR") return "ISCURRENT";
    return nullptr;
}
}  // namespace

AppointmentTimes::AppointmentTimes(frmTAS2& f)
    : f_(f), stopwatch_(f.controls().smtTimes.tool("TIMER"), f.controls().Timer1) {}

void AppointmentTimes::enableSave() { f_.controls().smtActions.tool("SAVE").setEnabled(true); }

// Works whatever SettingUp says: these buttons enable "SAVE" even after a
// refused save.
void AppointmentTimes::smtTimes_Click(Tool& tool) {
    auto& times = f_.controls().smtTimes;
    const std::string& key = tool.key();
    if (key == "TIMER") {
        StopwatchTool::toggle(tool, stopwatch_);
    } else if (key == "COPYTIMENEEDED") {
        // The caption says scheduled, the key needed: it is this slot's length.
        times.tool("TIMESPENT").setText(f_.getTATimeNeeded());
        enableSave();
    } else if (key == "ADDFROMTIMER") {
        Tool& spent = times.tool("TIMESPENT");
        spent.setText(StopwatchTool::addReading(times.tool("TIMER").text(), spent.text()));
        enableSave();
    }
}

void AppointmentTimes::smtTimes_BeforeEdit(Tool& tool, bool& cancel) {
    if (tool.key() == "TIMER") cancel = true;
}

void AppointmentTimes::smtTimes_Change(Tool&) {
    if (!g().SettingUp) enableSave();
}

// The task's total shows this slot's value, for the eye only.
void AppointmentTimes::smtTimes_AfterEdit(Tool& tool) {
    if (!TimeSpentEdit::take(tool, f_.controls().smtABOUT)) return;
    enableSave();
    f_.ValidateTask();
}

// A pick alone leaves "SAVE" as it was.
void AppointmentTimes::smtABOUT_Change(Tool& tool) {
    if (g().SettingUp) return;
    if (const Tool* picked = GetItemSelected(tool)) {
        if (const char* target = toolOfPrefix(picked->key().substr(0, 3)))
            f_.controls().smtABOUT.tool(target).setTag(picked->tag());
    }
    // Putting the loaded text back raises Change once more, with nothing to say.
    if (tool.key() == "SCHEDULED" && tool.text() != tool.tag()) {
        DialogMessages::inform(tr(kScheduledIsSum));
        tool.setText(tool.tag());
    }
}

}  // namespace qv
