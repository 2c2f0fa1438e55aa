// Checking and saving a Task Appointment: the slot's row, its task's row,
// the points and Time Scheduled, and the ways the dialog ends.

#include "dialogs/DialogExpect.h"
#include "dialogs/appointment/AppointmentFixture.h"
#include "dialogs/shared/PointsTally.h"
#include "session/globals/SessionGlobals.h"
#include "toolkit/TextEditor.h"
#include "toolkit/Ui.h"

namespace qv {

namespace {
class AppointmentSave : public Seeded<AppointmentFixture> {
protected:
    void expectSlot(Expected cases) const {
        expectEach([this](const std::string& c) { return slotValue(c); }, cases);
    }
    void expectTask(Expected cases) const {
        expectEach([this](const std::string& c) { return taskValue(c); }, cases);
    }
    // Works the slot to a save that the store refuses at the given table.
    void saveRefusedAt(const std::string& table) {
        refuseWrites(table);
        type("smtTimes", "TIMESPENT", "0:50");
        click("smtActions", "SAVE");
        open();
    }
};
}  // namespace

TEST_F(AppointmentSave, TaskIsDoneWithABlankTimeSpentStoresTheSlotsLengthAndCompletesTheTask) {
    exec("UPDATE TASKS SET tskTimeScheduled=0");
    click("smtReady", "DONE");
    then([this] {
        EXPECT_EQ(tool("smtABOUT", "STATUS").text(), "Completed");
        EXPECT_EQ(tool("smtTimes", "DONE").text(), "Complete");
        EXPECT_EQ(tool("smtTimes", "TIMESPENT").text(), "1:30");
        EXPECT_TRUE(tool("smtActions", "SAVE").enabled());
    });
    click("smtActions", "SAVE");
    open();

    expectSlot({{"taWasWorked", "1"}, {"taTimeWorked", "90"}, {"taDuration", "90"}});
    expectTask({{"tskStatus", "0"}, {"tskCurrent", "0"}, {"tskWasImported", "0"}});
    EXPECT_FALSE(taskValue("tskDoneDate").empty());
    EXPECT_EQ(taskValue("tskTimeScheduled"), "150") << "the sum of the task's two slots";
    const int32_t points = PointsTally::tally(g().PointsTable, 2, 1, 45, false, true);
    EXPECT_EQ(taskValue("tskPossPoints"), std::to_string(points)) << "worked out anew from the row";
    EXPECT_EQ(events_, (std::vector<std::string>{"TASUpdated", "DoCloseTaskForm"}));
    EXPECT_EQ(count("TASCompleted"), 0) << "the dialog never says TASisDone";
    EXPECT_FALSE(g().SettingUp);
}

TEST_F(AppointmentSave, EnterWithAnEmptyDescriptionTellsAndClosesWithNothingStored) {
    typeDescription("");
    then([this] { answer(vbOK); });
    key(vbKeyReturn);
    open();

    ASSERT_FALSE(scriptedUi().messages().empty());
    EXPECT_EQ(scriptedUi().messages().back().text, "Task Description cannot be blank.");
    expectSlot({{"taTaskDesc", "Slot text"}, {"taTimeWorked", "0"}});
    EXPECT_EQ(taskValue("tskTimeScheduled"), "30");
    EXPECT_EQ(count("TASUpdated"), 0);
    EXPECT_EQ(count("DoCloseTaskForm"), 1) << "Enter closes even when the save was refused";
    EXPECT_TRUE(g().SettingUp) << "a refused save leaves the flag raised";
}

TEST_F(AppointmentSave, OnlyCompletedIsStoredOfTheStatusAndPicksMoveIntoTheRows) {
    click("smtABOUT", "STATUS-1");
    click("smtABOUT", std::string("PRJ-") + kBeta);
    click("smtABOUT", "IMP-4");
    type("smtTimes", "END", "11:00");
    typeDescription("New words");
    then([this] {
        EXPECT_EQ(tool("smtABOUT", "STATUS").tag(), "1");
        EXPECT_EQ(tool("smtABOUT", "PROJECT").tag(), kBeta);
    });
    click("smtActions", "SAVE");
    open();

    EXPECT_EQ(taskValue("tskStatus"), "3") << "\"In Progress\" is not stored";
    EXPECT_EQ(slotValue("taWasWorked"), "") << "the design text leaves the column alone";
    expectTask({{"tskCurrent", "1"}, {"tskProjectKey", kBeta}, {"tskImp", "4"}, {"tskDesc", "New words"},
                {"tskTimeScheduled", "180"}});
    expectSlot({{"taProject", "B+eta"}, {"taProjectGUIDID", kBeta}, {"taImp", "4"}, {"taDuration", "120"},
                {"taEndTime", "2026-11-24T11:00:00.000"}, {"taTaskDesc", "New words"}});
    EXPECT_EQ(count("TASUpdated"), 1);
}

TEST_F(AppointmentSave, ARefusedSaveSticksAndTheBlankTimeSpentQuestion) {
    type("smtTimes", "START", "9:00");
    typeDescription("");
    then([this] { answer(vbOK); });
    click("smtActions", "SAVE");
    then([this] {
        EXPECT_EQ(scriptedUi().messages().back().text, "Task Description cannot be blank.");
        EXPECT_FALSE(tool("smtActions", "SAVE").enabled());
        EXPECT_TRUE(g().SettingUp) << "a refused save leaves the flag raised";
        tool("smtTimes", "END").setText("11:00");
        EXPECT_FALSE(tool("smtActions", "SAVE").enabled()) << "so the change handler is quiet";
    });
    click("smtTimes", "COPYTIMENEEDED");
    then([this] {
        EXPECT_TRUE(tool("smtActions", "SAVE").enabled()) << "the copy buttons enable it regardless";
        EXPECT_EQ(tool("smtTimes", "TIMESPENT").text(), "2:00");
    });
    typeDescription("Back again");
    // With the flag raised the typed text is not judged: "45" is no clock time.
    type("smtTimes", "TIMESPENT", "45");
    then([this] { answer(vbNo); });
    click("smtActions", "SAVE");
    then([this] {
        EXPECT_EQ(scriptedUi().messages().back().text,
                  "Task Appointment Time Spent is blank. Set it to this Task Appointment's duration?");
        EXPECT_TRUE(tool("smtActions", "SAVE").enabled()) << "a No leaves the button enabled";
        EXPECT_EQ(count("TASUpdated"), 0);
        EXPECT_EQ(slotValue("taTaskDesc"), "Slot text");
    });
    then([this] { answer(vbYes); });
    click("smtActions", "SAVE");
    open();
    expectSlot({{"taTimeWorked", "120"}, {"taTaskDesc", "Back again"}});
    EXPECT_EQ(count("TASUpdated"), 1);
}

TEST_F(AppointmentSave, ClosingAsksOnlyWithSomethingToUpdateAndEscapeCancels) {
    then([this] { form().requestClose(); });
    open();
    EXPECT_TRUE(scriptedUi().messages().empty()) << "nothing to update, nothing asked";
    EXPECT_EQ(count("DoCloseTaskForm"), 1);

    type("smtTimes", "TIMESPENT", "0:40");
    then([this] { answer(vbNo); });
    then([this] { form().requestClose(); });
    then([this] {
        EXPECT_EQ(scriptedUi().messages().back().text, "Cancel update the current task appointment?");
        EXPECT_TRUE(form().visible()) << "No keeps the dialog";
    });
    key(vbKeyEscape);
    open();
    EXPECT_EQ(count("DoCloseTaskForm"), 2);
    EXPECT_EQ(slotValue("taTimeWorked"), "0");
}

TEST_F(AppointmentSave, AChecklistRemovedIsUnlinkedAtTheSave) {
    exec("INSERT INTO CHECKLISTS (ckGUIDID, ckName, ckContent) VALUES ('" + std::string(kChecklist) +
         "', 'List', 'x')");
    exec("UPDATE TASKS SET tskHasChecklist=1, tskTCheckListGUID='" + std::string(kChecklist) + "'");
    then([this] { form().checklistLink().ckPicker_CKPicked("-NONE-"); });
    then([this] { EXPECT_EQ(taskValue("tskTCheckListGUID"), kChecklist) << "not before the save"; });
    type("smtTimes", "TIMESPENT", "0:30");
    click("smtActions", "SAVE");
    open();
    expectTask({{"tskTCheckListGUID", ""}, {"tskHasChecklist", "0"}});
}

TEST_F(AppointmentSave, ARefusedTaskRowLeavesTheSlotStoredAndTakesTheErrorPath) {
    saveRefusedAt("TASKS");
    EXPECT_EQ(slotValue("taTimeWorked"), "50") << "the slot's row was written before the task's";
    EXPECT_EQ(taskValue("tskTimeScheduled"), "30");
    EXPECT_EQ(reporter().faults().size(), 1u);
    EXPECT_EQ(count("TASUpdated"), 0);
    EXPECT_EQ(count("GotErrExitNow"), 1);
}

TEST_F(AppointmentSave, ARefusedSlotRowStoresNothing) {
    saveRefusedAt("TASKAPPTS");
    EXPECT_EQ(slotValue("taTimeWorked"), "0");
    EXPECT_EQ(reporter().faults().size(), 1u);
    EXPECT_EQ(count("TASUpdated"), 0);
}

}  // namespace qv
