#include "dialogs/existingtask/ExistingTaskControls.h"

#include "dialogs/checklists/ChecklistLink.h"

namespace qv {

ExistingTaskControls::ExistingTaskControls() {
    buildAbout();
    buildReady();
    buildTimes();
    buildActions();
    buildSchedule();
    ChecklistLink::buildTools(smtCKActions);
    buildPanes();
    spellCK.setReadOnly(true);
    Timer1.setInterval(1000);
    Timer2.setInterval(200);
}

// Captions end in a tab stop, so the values stand in one column; the
// appointment's About sheet has its own captions and order.
void ExistingTaskControls::buildAbout() {
    auto& s = smtABOUT;
    s.add(ttTextBox, "STATUS", "Status:\t");
    Tool& current = s.add(ttTextBox, "ISCURRENT", "Current:\t");
    current.addItem(ttOption, "YES", "Yes").setTag("TRUE");
    current.addItem(ttOption, "NO", "No").setTag("FALSE");
    current.setText("Yes");
    Tool& done = s.add(ttTextBox, "DATEDONE", "Date Done:\t");
    done.setTip("Date Task was actually completed");
    done.setVisible(false);
    s.add(ttHeading, {}, "Deadline");
    s.add(ttTextBox, "DEADLINE", "Date:\t");
    s.add(ttTextBox, "DEADTIME", "Time:\t");
    s.add(ttTextBox, "PROJECT", "Project:\t");
    s.add(ttTextBox, "IMP", "Importance:\t");
    s.add(ttTextBox, "DIFF", "Difficulty:\t");
    s.add(ttTextBox, "NEEDED", "Needed:\t");
    s.add(ttTextBox, "SCHEDULED", "Scheduled:\t");
    s.add(ttTextBox, "SPENT", "Time Spent:\t");
}

void ExistingTaskControls::buildReady() {
    auto& s = smtReady;
    s.add(ttCheck, "DONE", "Task is Done");
    s.add(ttHeading, {}, "Possible Points:");
    s.add(ttTextBox, "POINTS");
}

void ExistingTaskControls::buildTimes() {
    auto& s = smtTimes;
    s.add(ttTextBox, "TIMESPENT", "Time Spent:\t").setText("0:00");
    s.add(ttButton, "COPYTIMENEEDED", "Copy Time Needed");
    s.add(ttButton, "ADDFROMTIMER", " Add From Timer");
    Tool& timer = s.add(ttTextBox, "TIMER", "Timer:");
    timer.setImage("GRAY");
    timer.setTip("Total Time Spent");
}

void ExistingTaskControls::buildActions() {
    auto& s = smtActions;
    s.add(ttButton, "HELP", "&Help").setTip("Get Help on Updating Tasks");
    s.add(ttButton, "RESETL", "&Reset").setTip("Reset the layout of this screen");
    Tool& printing = s.add(ttDropSeparator, {}, "Printin&g ");
    printing.addItem(ttButton, "PRINT", "&Print");
    printing.addItem(ttButton, "PRINTPREVIEW", "Print Pr&eview");
    printing.addItem(ttButton, "PAGESETUP", "Page Se&tup...");
    s.add(ttSeparator);
    s.add(ttButton, "DELETE", "&Delete").setTip("Delete this task");
    s.add(ttButton, "DONE", "C&ancel").setTip("Discard changes to this task");
    s.add(ttButton, "UPDATE", "&Update Task").setTip("Update this task");
}

void ExistingTaskControls::buildSchedule() {
    smtSkedBtns.add(ttButton, "DELETE", "Delete").setTip("Delete selected Task Appointment");
    smtSkedBtns.add(ttButton, "ADD", "Add").setTip("Create a Task Appointment for this task");
    smtSkedTimes.add(ttButton, "COPYTA", "Sum as the Time Spent>>>");
    smtSkedTimes.add(ttTextBox, "SPENT");
}


// Left column About and Notes, middle the task and the tabs, right the
// times and keywords, the actions along the bottom.
void ExistingTaskControls::buildPanes() {
    for (const char* name : {"About", "Notes", "Task", "Tabs", "Spare", "Times", "Keywords", "Actions"})
        splitTask.addPane(name);
}

}  // namespace qv
