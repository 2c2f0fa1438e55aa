#include "dialogs/shared/PrintingMenu.h"

#include "toolkit/Sheet.h"
#include "toolkit/Translate.h"

namespace qv {

Tool& PrintingMenu::add(Sheet& actions, const std::string& pageSetupCaption) {
    Tool& printing = actions.add(ttDropSeparator, {}, tr("Printin&g "));
    printing.addItem(ttButton, "PRINT", tr("&Print"));
    printing.addItem(ttButton, "PRINTPREVIEW", tr("Print Pr&eview"));
    printing.addItem(ttButton, "PAGESETUP", pageSetupCaption);
    return printing;
}

}  // namespace qv
