#include "dialogs/existingtask/ExistingTaskControls.h"

#include "dialogs/checklists/ChecklistLink.h"
#include "toolkit/Translate.h"

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
    s.add(ttTextBox, "STATUS", tr("Status:\t"));
    Tool& current = s.add(ttTextBox, "ISCURRENT", tr("Current:\t"));
    current.addItem(ttOption, "YES", tr("Yes")).setTag("TRUE");
    current.addItem(ttOption, "NO", tr("No")).setTag("FALSE");
    current.setText(tr("Yes"));
    Tool& done = s.add(ttTextBox, "DATEDONE", tr("Date Done:\t"));
    done.setTip(tr("Date Task was actually completed"));
    done.setVisible(false);
    s.add(ttHeading, {}, tr("Deadline"));
    s.add(ttTextBox, "DEADLINE", tr("Date:\t"));
    s.add(ttTextBox, "DEADTIME", tr("Time:\t"));
    s.add(ttTextBox, "PROJECT", tr("Project:\t"));
    s.add(ttTextBox, "IMP", tr("Importance:\t"));
    s.add(ttTextBox, "DIFF", tr("Difficulty:\t"));
    s.add(ttTextBox, "NEEDED", tr("Needed:\t"));
    s.add(ttTextBox, "SCHEDULED", tr("Scheduled:\t"));
    s.add(ttTextBox, "SPENT", tr("Time Spent:\t"));
}

void ExistingTaskControls::buildReady() {
    auto& s = smtReady;
    s.add(ttCheck, "DONE", tr("Task is Done"));
    s.add(ttHeading, {}, tr("Possible Points:"));
    s.add(ttTextBox, "POINTS");
}

void ExistingTaskControls::buildTimes() {
    auto& s = smtTimes;
    s.add(ttTextBox, "TIMESPENT", tr("Time Spent:\t")).setText("0:00");
    s.add(ttButton, "COPYTIMENEEDED", tr("Copy Time Needed"));
    s.add(ttButton, "ADDFROMTIMER", tr(" Add From Timer"));
    Tool& timer = s.add(ttTextBox, "TIMER", tr("Timer:"));
    timer.setImage("GRAY");
    timer.setTip(tr("Total Time Spent"));
}

void ExistingTaskControls::buildActions() {
    auto& s = smtActions;
    s.add(ttButton, "HELP", tr("&Help")).setTip(tr("Get Help on Updating Tasks"));
    s.add(ttButton, "RESETL", tr("&Reset")).setTip(tr("Reset the layout of this screen"));
    Tool& printing = s.add(ttDropSeparator, {}, tr("Printin&g "));
    printing.addItem(ttButton, "PRINT", tr("&Print"));
    printing.addItem(ttButton, "PRINTPREVIEW", tr("Print Pr&eview"));
    printing.addItem(ttButton, "PAGESETUP", tr("Page Se&tup..."));
    s.add(ttSeparator);
    s.add(ttButton, "DELETE", tr("&Delete")).setTip(tr("Delete this task"));
    s.add(ttButton, "DONE", tr("C&ancel")).setTip(tr("Discard changes to this task"));
    s.add(ttButton, "UPDATE", tr("&Update Task")).setTip(tr("Update this task"));
}

void ExistingTaskControls::buildSchedule() {
    smtSkedBtns.add(ttButton, "DELETE", tr("Delete")).setTip(tr("Delete selected Task Appointment"));
    smtSkedBtns.add(ttButton, "ADD", tr("Add")).setTip(tr("Create a Task Appointment for this task"));
    smtSkedTimes.add(ttButton, "COPYTA", tr("Sum as the Time Spent>>>"));
    smtSkedTimes.add(ttTextBox, "SPENT");
}


// Left column About and Notes, middle the task and the tabs, right the
// times and keywords, the actions along the bottom.
void ExistingTaskControls::buildPanes() {
    for (const char* name : {"About", "Notes", "Task", "Tabs", "Spare", "Times", "Keywords", "Actions"})
        splitTask.addPane(name);
}

}  // namespace qv
