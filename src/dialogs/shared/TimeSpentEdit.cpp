#include "dialogs/shared/TimeSpentEdit.h"

#include "dialogs/shared/DialogMessages.h"
#include "dialogs/shared/SettingUp.h"
#include "session/globals/SessionGlobals.h"
#include "toolkit/Sheet.h"
#include "toolkit/Translate.h"
#include "values/settings/TimeValues.h"

namespace qv {

namespace {
const char* const kNotATime = QV_N("That value was not recognized as a time period like 1:00.");
}  // namespace

bool TimeSpentEdit::take(Tool& edited, Sheet& about) {
    if (g().SettingUp || edited.key() != "TIMESPENT") return false;
    if (!IsTimeValue(edited.text())) {
        DialogMessages::inform(tr(kNotATime));
        edited.setText("0:00");
        return false;
    }
    SettingUp raised;
    about.tool("SPENT").setText(edited.text());
    return true;
}

}  // namespace qv
