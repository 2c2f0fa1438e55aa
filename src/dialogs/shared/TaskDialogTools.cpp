#include "dialogs/shared/TaskDialogTools.h"

#include "dialogs/shared/SettingUp.h"
#include "dialogs/shared/TaskPrinter.h"
#include "toolkit/HelpViewer.h"
#include "session/globals/SessionGlobals.h"
#include "toolkit/Ports.h"

namespace qv {

bool TaskDialogTools::run(const std::string& key) {
    if (key == "HELP") help();
    else if (key == "PRINT") print(false);
    else if (key == "PRINTPREVIEW") print(true);
    else if (key == "PAGESETUP") pageSetup();
    else return false;
    return true;
}

void TaskDialogTools::help() {
    if (HelpViewer* viewer = ports().help) viewer->openHelpPop(helpTopic_, g().TaskPrintSetting);
}

void TaskDialogTools::print(bool preview) {
    if (preview) printer_.DoPrintPreview();
    else printer_.DoPrint();
}

void TaskDialogTools::pageSetup() {
    SettingUp lower(SettingUp::Raise::ByTheWork);
    printer_.PageSetup();
}

}  // namespace qv
