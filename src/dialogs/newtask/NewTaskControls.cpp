#include "dialogs/newtask/NewTaskControls.h"

#include "dialogs/shared/PrintingMenu.h"
#include "dialogs/checklists/ChecklistLink.h"
#include "toolkit/Translate.h"

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
    s.add(ttButton, "HELP", tr("&Help")).setTip(tr("Help with New Tasks"));
    PrintingMenu::add(s, tr("Page &Setup..."));
    s.add(ttButton, "RESETL", tr("&Reset")).setTip(tr("Reset the layout of this screen"));
    Tool& clear = s.add(ttButton, "CLEAR", tr("C&lear"));
    clear.setTip(tr("Clear all information"));
    clear.setEnabled(false);
    s.add(ttSeparator);
    s.add(ttButton, "DONE", tr("D&one")).setTip(tr("Finished with this screen"));
    Tool& add = s.add(ttButton, "QV2", tr("A&dd"));
    add.setTip(tr("Add to Quorvel"));
    add.setEnabled(false);
    add.addItem(ttButton, "TC", tr("Add to &Task Catalog")).setEnabled(false);
    add.addItem(ttButton, "QV", tr("Add to &Quorvel")).setEnabled(false);
}

void NewTaskControls::buildOther() {
    auto& s = smtOther;
    Tool& done = s.add(ttTextBox, "DATEDONE", tr("Date Done:"));
    done.setVisible(false);
    done.setHostedControl("cttheDateDone");
    s.add(ttTextBox, "STATUS").setText("Defined");
    s.add(ttCheck, "ISCURRENT", tr("Current Task"));
    s.add(ttHeading, {}, tr("DeadLine:"));
    s.add(ttTextBox, "DEADDATE", tr("Date:"));
    s.add(ttTextBox, "DEADTIME", tr("Time:"));
    s.add(ttButton, "CLEARDEAD", tr("Clear Deadline")).setTip(tr("Clears the Deadline date and time"));
}

void NewTaskControls::buildReady() {
    auto& s = smtReady;
    s.add(ttHeading, {}, tr("Ready:"));
    for (const char* key : {"DESCFLAG", "PROJECTFLAG", "TIMENEEDEDFLAG", "IMPFLAG", "DIFFFLAG"})
        s.add(ttButton, key).setImage("BAD");
    s.add(ttHeading, {}, tr("Possible Points:"));
    s.add(ttTextBox, "POINTS");
}


void NewTaskControls::buildPanes() {
    for (const char* name :
         {"Status", "Project", "Task", "Checklist", "Notes", "Keywords", "Needed", "Imp", "Diff", "Pic", "Actions"})
        splitTask.addPane(name);
}

}  // namespace qv
