#include "dialogs/appointment/AppointmentControls.h"

#include "dialogs/shared/PrintingMenu.h"
#include "toolkit/Translate.h"

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
    s.add(ttTextBox, "START", tr("Start:"));
    s.add(ttTextBox, "END", tr("End:"));
    Tool& done = s.add(ttTextBox, "DONE", tr("Status:"));
    done.addItem(ttOption, "DONE-1", tr("Complete"));
    done.addItem(ttOption, "DONE-0", tr("Not Complete"));
    done.setText("Completed");
    Tool& spent = s.add(ttTextBox, "TIMESPENT", tr("Time Spent:"));
    spent.setText("0:00");
    spent.setTip(tr("During this Task Appointment"));
    s.add(ttButton, "COPYTIMENEEDED", tr("Copy Time Scheduled"));
    s.add(ttButton, "ADDFROMTIMER", tr(" Add From Timer"));
    s.add(ttButton, "TIMER", tr("Timer:")).setImage("GRAY");
}

void AppointmentControls::buildReady() {
    auto& s = smtReady;
    s.setTitle({});
    s.add(ttCheck, "DONE", tr("Task is Done"));
    s.add(kValueTool, "POINTS", tr("Possible Points:"));
    s.add(ttButton, {}).setImage("GOOD");
}

// Not the Existing Task's About sheet: headed groups, longer captions with
// no tab stop, and every value the task's, shown here read-only.
void AppointmentControls::buildAbout() {
    auto& s = smtABOUT;
    s.add(ttHeading, "H1", tr("General"));
    s.add(ttTextBox, "STATUS", tr("Status:"));
    s.add(ttTextBox, "PROJECT", tr("Project:"));
    s.add(ttTextBox, "IMP", tr("Importance:"));
    s.add(ttTextBox, "DIFF", tr("Difficulty:"));
    Tool& current = s.add(ttTextBox, "ISCURRENT", tr("On Current List:"));
    current.addItem(ttOption, {}, tr("Yes")).setTag("TRUE");
    current.addItem(ttOption, {}, tr("No")).setTag("FALSE");
    s.add(ttHeading, "H2", tr("Time"));
    s.add(ttTextBox, "NEEDED", tr("Time Needed:"));
    s.add(ttTextBox, "SCHEDULED", tr("Time Scheduled:"));
    s.add(ttTextBox, "SPENT", tr("Total Time Spent:"));
    s.add(ttTextBox, "DEADLINE", tr("Deadline:"));
}

void AppointmentControls::buildActions() {
    auto& s = smtActions;
    s.add(ttButton, "HELP", tr("&Help")).setTip(tr("Help with Task Appointments"));
    PrintingMenu::add(s, tr("Page Se&tup"));
    s.add(ttButton, "EDIT", tr("Edit &Task")).setTip(tr("Open the task of this appointment"));
    s.add(ttSeparator);
    s.add(ttButton, "CANCEL", tr("C&ancel"));
    Tool& save = s.add(ttButton, "SAVE", tr("&Update"));
    save.setTip(tr("Update this Task Appointment"));
    save.setEnabled(false);
}

void AppointmentControls::buildChecklistActions() {
    auto& s = smtCKActions;
    s.add(ttButton, "PICK", tr("Pick..."));
    s.add(ttButton, "EDIT", tr("Edit..."));
}

void AppointmentControls::buildPanes() {
    for (const char* name : {"Upper", "Times", "Tabs", "Ready", "Actions"}) splitTAS.addPane(name);
    splitTAS.setPaneHeight(paneTATabs, 2310);
}

}  // namespace qv
