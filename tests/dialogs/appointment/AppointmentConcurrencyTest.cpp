// Two editors of one Task Appointment: the save against another user who
// changes the slot or its task while the dialog is open.

#include <string>

#include "dialogs/appointment/AppointmentFixture.h"
#include "dialogs/existingtask/frmExistingTask.h"
#include "session/globals/SessionGlobals.h"
#include "toolkit/TextEditor.h"
#include "toolkit/Ui.h"

namespace qv {

using AppointmentConcurrency = Seeded<AppointmentFixture>;

// The user changes the description and the end; another user the notes,
// the importance and the start: all of it stays, and the duration follows
// the start and end as they then stand.
TEST_F(AppointmentConcurrency, DifferentFieldsBothStay) {
    typeDescription("Mow the lawn");
    type("smtTimes", "END", "11:00");
    otherUser("UPDATE TASKS SET tskNotes='Their notes', tskImp=4");
    otherUser("UPDATE TASKAPPTS SET taStartTime='2026-11-24T08:00:00.000' WHERE taGUIDID='" +
              std::string(kSlot) + "'");
    click("smtActions", "SAVE");
    open();
    EXPECT_TRUE(scriptedUi().messages().empty());
    EXPECT_EQ(taskValue("tskDesc"), "Mow the lawn");
    EXPECT_EQ(taskValue("tskNotes"), "Their notes");
    EXPECT_EQ(taskValue("tskImp"), "4");
    EXPECT_EQ(slotValue("taTaskDesc"), "Mow the lawn");
    EXPECT_EQ(slotValue("taStartTime").substr(11, 5), "08:00");
    EXPECT_EQ(slotValue("taEndTime").substr(11, 5), "11:00");
    EXPECT_EQ(slotValue("taDuration"), "180");
    EXPECT_EQ(count("TASUpdated"), 1);
    EXPECT_TRUE(reporter().faults().empty());
}

// No (by the action and by Enter) keeps the dialog and stores nothing;
// Yes puts the user's value over the other user's.
TEST_F(AppointmentConcurrency, TheSameFieldIsAskedAboutFirst) {
    typeDescription("Mow the lawn");
    type("smtTimes", "END", "10:45");  // a change of the times enables "SAVE"
    otherUser("UPDATE TASKS SET tskDesc='Their desc', tskNotes='Their notes'");
    then([this] { answer(vbNo); });
    click("smtActions", "SAVE");
    then([this] { answer(vbNo); });
    key(vbKeyReturn);
    then([this] {
        ASSERT_EQ(scriptedUi().messages().size(), 2U);
        EXPECT_EQ(scriptedUi().messages().front().title, kProgramTitle);
        EXPECT_NE(scriptedUi().messages().front().text.find("Another user changed Description"),
                  std::string::npos);
        EXPECT_TRUE(form().visible());
        EXPECT_EQ(form().editor("spellTask")->text(), "Mow the lawn");
        EXPECT_EQ(taskValue("tskDesc"), "Their desc");
        EXPECT_EQ(slotValue("taTaskDesc"), "Slot text") << "nothing of the save is stored";
        EXPECT_EQ(count("TASUpdated"), 0);
        EXPECT_FALSE(g().SettingUp);
    });
    then([this] { answer(vbYes); });
    click("smtActions", "SAVE");
    open();
    EXPECT_EQ(taskValue("tskDesc"), "Mow the lawn");
    EXPECT_EQ(slotValue("taTaskDesc"), "Mow the lawn");
    EXPECT_EQ(taskValue("tskNotes"), "Their notes") << "the dialog's notes were the loaded ones";
    EXPECT_EQ(count("TASUpdated"), 1);
    EXPECT_TRUE(reporter().faults().empty());
}

// "Edit Task" runs a nested Existing Task session inside the open appointment
// dialog; the session's globals are the nested run's afterwards.
using AppointmentReentry = Seeded<AppointmentFixture>;

TEST_F(AppointmentReentry, EditTaskRunsANestedExistingTaskWhoseEventsReachTheHost) {
    click("smtActions", "EDIT");
    // Now inside the nested session.
    then([this] {
        ASSERT_TRUE(task_.frmE());
        EXPECT_TRUE(task_.frmE()->visible());
        EXPECT_EQ(g().TaskMode, 1);
        EXPECT_EQ(g().CurrentTaskGUID, kTask) << "the nested run holds the task's key";
        EXPECT_TRUE(form().visible()) << "the appointment stays open beneath";
        EXPECT_TRUE(form().loaded());
        sheet("smtTimes").click(tool("smtTimes", "TIMER"));
        EXPECT_EQ(tool("smtTimes", "TIMER").tag(), "ON") << "and its tools still answer";
        task_.frmE()->TaskUpdated();
        task_.frmE()->TaskCanceled({});
    });
    open();

    EXPECT_EQ(events_, (std::vector<std::string>{"LoadingTask", "TaskUpdated", "DoCloseTaskForm", "DoCloseTaskForm"}));
    EXPECT_FALSE(form().visible()) << "the appointment closes once the task's dialog has";
    EXPECT_FALSE(task_.frmWorkTAS());
    EXPECT_EQ(g().TaskMode, 1) << "the nested run's globals stay";
    EXPECT_EQ(g().CurrentTaskGUID, kTask);
    EXPECT_EQ(slotValue("taTimeWorked"), "0") << "nothing is saved before the task opens";

    // The same session opens the appointment again afterwards.
    then([this] { EXPECT_EQ(form().editor("spellTask")->text(), "Slot text"); });
    click("smtActions", "CANCEL");
    open();
    EXPECT_EQ(count("DoCloseTaskForm"), 3);
    EXPECT_EQ(g().TaskMode, 2);
}

}  // namespace qv
