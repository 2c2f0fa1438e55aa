#include "dialogs/shared/DialogMessages.h"

#include "session/globals/SessionGlobals.h"
#include "toolkit/Ports.h"
#include "toolkit/Ui.h"

namespace qv {

void DialogMessages::inform(const std::string& text) { ui().msgBox(text, vbInformation, kProgramTitle); }

bool DialogMessages::askYesNo(const std::string& text) {
    return ui().msgBox(text, vbYesNo, kProgramTitle) == vbYes;
}

}  // namespace qv
