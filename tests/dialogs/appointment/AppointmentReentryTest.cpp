// "Edit Task" from a Task Appointment: a nested Existing Task session runs
// inside the open appointment dialog, and the session's globals are the
// nested run's afterwards.

#include "dialogs/appointment/AppointmentFixture.h"
#include "dialogs/existingtask/frmExistingTask.h"
#include "session/globals/SessionGlobals.h"

namespace qv {

using AppointmentReentry = AppointmentFixture;

TEST_F(AppointmentReentry, EditTaskRunsANestedExistingTaskWhoseEventsReachTheHost) {
    seed();
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
