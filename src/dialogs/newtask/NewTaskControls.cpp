#include "dialogs/newtask/NewTaskControls.h"

#include "dialogs/shared/PrintingMenu.h"
#include "dialogs/checklists/ChecklistLink.h"

namespace qv {

NewTaskControls::NewTaskControls() {
    buildActions();
    buildOther();
    buildReady();
    ChecklistLink::buildTools(smtCKActions);
    buildPanes();
    spellCK.setReadOnly(true);
    lblTaskSaved.setVisible(false);
    startTimer.setInterval(500);
}

void NewTaskControls::buildActions() {
    auto& s = smtActions;
    s.add(ttButton, "HELP", "&Help").setTip("Help with New Tasks");
    PrintingMenu::add(s, "Page &Setup...");
    s.add(ttButton, "RESETL", "&Reset").setTip("Reset the layout of this screen");
    Tool& clear = s.add(ttButton, "CLEAR", "C&lear");
    clear.setTip("Clear all information");
    clear.setEnabled(false);
    s.add(ttSeparator);
    s.add(ttButton, "DONE", "D&one").setTip("Finished with this screen");
    Tool& add = s.add(ttButton, "QV2", "A&dd");
    add.setTip("Add to Quorvel");
    add.setEnabled(false);
    add.addItem(ttButton, "TC", "Add to &Task Catalog").setEnabled(false);
    add.addItem(ttButton, "QV", "Add to &Quorvel").setEnabled(false);
}

void NewTaskControls::buildOther() {
    auto& s = smtOther;
    Tool& done = s.add(ttTextBox, "DATEDONE", "Date Done:");
    done.setVisible(false);
    done.setHostedControl("cttheDateDone");
    s.add(ttTextBox, "STATUS").setText("Defined");
    s.add(ttCheck, "ISCURRENT", "Current Task");
    s.add(ttHeading, {}, "DeadLine:");
    s.add(ttTextBox, "DEADDATE", "Date:");
    s.add(ttTextBox, "DEADTIME", "Time:");
    s.add(ttButton, "CLEARDEAD", "Clear Deadline").setTip("Clears the Deadline date and time");
}

void NewTaskControls::buildReady() {
    auto& s = smtReady;
    s.add(ttHeading, {}, "Ready:");
    for (const char* key : {"DESCFLAG", "PROJECTFLAG", "TIMENEEDEDFLAG", "IMPFLAG", "DIFFFLAG"})
        s.add(ttButton, key).setImage("BAD");
    s.add(ttHeading, {}, "Possible Points:");
    s.add(ttTextBox, "POINTS");
}


void NewTaskControls::buildPanes() {
    for (const char* name :
         {"Status", "Project", "Task", "Checklist", "Notes", "Keywords", "Needed", "Imp", "Diff", "Pic", "Actions"})
        splitTask.addPane(name);
}

}  // namespace qv
