#include "dialogs/appointment/AppointmentControls.h"

#include "dialogs/shared/PrintingMenu.h"

namespace qv {

namespace {
// A tool of no input kind: the sheet shows its caption and text, read-only.
constexpr int32_t kValueTool = 0;
}  // namespace

AppointmentControls::AppointmentControls() {
    buildTimes();
    buildReady();
    buildAbout();
    buildActions();
    buildChecklistActions();
    buildPanes();
    spellCK.setReadOnly(true);
}

void AppointmentControls::buildTimes() {
    auto& s = smtTimes;
    s.add(ttTextBox, "DATE").setHostedControl("ctTADate");
    s.add(ttTextBox, "START", "Start:");
    s.add(ttTextBox, "END", "End:");
    Tool& done = s.add(ttTextBox, "DONE", "Status:");
    done.addItem(ttOption, "DONE-1", "Complete");
    done.addItem(ttOption, "DONE-0", "Not Complete");
    done.setText("Completed");
    Tool& spent = s.add(ttTextBox, "TIMESPENT", "Time Spent:");
    spent.setText("0:00");
    spent.setTip("During this Task Appointment");
    s.add(ttButton, "COPYTIMENEEDED", "Copy Time Scheduled");
    s.add(ttButton, "ADDFROMTIMER", " Add From Timer");
    s.add(ttButton, "TIMER", "Timer:").setImage("GRAY");
}

void AppointmentControls::buildReady() {
    auto& s = smtReady;
    s.setTitle({});
    s.add(ttCheck, "DONE", "Task is Done");
    s.add(kValueTool, "POINTS", "Possible Points:");
    s.add(ttButton, {}).setImage("GOOD");
}

// Not the Existing Task's About sheet: headed groups, longer captions with
// no tab stop, and every value the task's, shown here read-only.
void AppointmentControls::buildAbout() {
    auto& s = smtABOUT;
    s.add(ttHeading, "H1", "General");
    s.add(ttTextBox, "STATUS", "Status:");
    s.add(ttTextBox, "PROJECT", "Project:");
    s.add(ttTextBox, "IMP", "Importance:");
    s.add(ttTextBox, "DIFF", "Difficulty:");
    Tool& current = s.add(ttTextBox, "ISCURRENT", "On Current List:");
    current.addItem(ttOption, {}, "Yes").setTag("TRUE");
    current.addItem(ttOption, {}, "No").setTag("FALSE");
    s.add(ttHeading, "H2", "Time");
    s.add(ttTextBox, "NEEDED", "Time Needed:");
    s.add(ttTextBox, "SCHEDULED", "Time Scheduled:");
    s.add(ttTextBox, "SPENT", "Total Time Spent:");
    s.add(ttTextBox, "DEADLINE", "Deadline:");
}

void AppointmentControls::buildActions() {
    auto& s = smtActions;
    s.add(ttButton, "HELP", "&Help").setTip("Help with Task Appointments");
    PrintingMenu::add(s, "Page Se&tup");
    s.add(ttButton, "EDIT", "Edit &Task").setTip("Open the task of this appointment");
    s.add(ttSeparator);
    s.add(ttButton, "CANCEL", "C&ancel");
    Tool& save = s.add(ttButton, "SAVE", "&Update");
    save.setTip("Update this Task Appointment");
    save.setEnabled(false);
}

void AppointmentControls::buildChecklistActions() {
    auto& s = smtCKActions;
    s.add(ttButton, "PICK", "Pick...");
    s.add(ttButton, "EDIT", "Edit...");
}

void AppointmentControls::buildPanes() {
    for (const char* name : {"Upper", "Times", "Tabs", "Ready", "Actions"}) splitTAS.addPane(name);
    splitTAS.setPaneHeight(paneTATabs, 2310);
}

}  // namespace qv
