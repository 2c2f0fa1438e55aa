#include "dialogs/shared/PrintingMenu.h"

#include "toolkit/Sheet.h"

namespace qv {

Tool& PrintingMenu::add(Sheet& actions, const std::string& pageSetupCaption) {
    Tool& printing = actions.add(ttDropSeparator, {}, "Printin&g ");
    printing.addItem(ttButton, "PRINT", "&Print");
    printing.addItem(ttButton, "PRINTPREVIEW", "Print Pr&eview");
    printing.addItem(ttButton, "PAGESETUP", pageSetupCaption);
    return printing;
}

}  // namespace qv
