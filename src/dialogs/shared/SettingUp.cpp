#include "dialogs/shared/SettingUp.h"

#include "session/globals/SessionGlobals.h"

namespace qv {

SettingUp::SettingUp(Raise raise) {
    if (raise == Raise::Now) g().SettingUp = true;
}

SettingUp::~SettingUp() { g().SettingUp = false; }

}  // namespace qv
