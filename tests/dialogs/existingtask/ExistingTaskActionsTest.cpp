// Delete, the catalog save of mode 5, the sort numbers, a picked checklist
// and the time tools of the Existing Task dialog.

#include "dialogs/checklists/ChecklistLink.h"
#include "dialogs/checklists/frmCkPicker.h"
#include "dialogs/DialogExpect.h"
#include "dialogs/existingtask/ExistingTaskDelete.h"
#include "dialogs/existingtask/ExistingTaskFixture.h"
#include "session/globals/SessionGlobals.h"
#include "toolkit/Timer.h"
#include "toolkit/Ui.h"
#include "values/types/DateSerial.h"

namespace qv {

using ExistingTaskActionsTest = Seeded<ExistingTaskFixture>;

TEST_F(ExistingTaskActionsTest, DeleteAsksThenLeavesTheRowsToTheHost) {
    EXPECT_EQ(ExistingTaskDelete::question(false, false), "Delete this task?");
    EXPECT_EQ(ExistingTaskDelete::question(false, true), "Delete this task and all its Task Appointments?");
    EXPECT_EQ(ExistingTaskDelete::question(true, false), "Delete this task and its Checklist?");
    EXPECT_EQ(ExistingTaskDelete::question(true, true),
              "Delete this task, all its Task Appointments and its Checklist?");
    exec("INSERT INTO CHECKLISTS (ckGUIDID, ckName, ckDesc, ckContent) VALUES ('" + std::string(kChecklist) +
         "', 'List', 'd', 'c')");
    addTask(", tskTCheckListGUID", ", '" + std::string(kChecklist) + "'");
    exec("UPDATE TASKS SET tskHasSchedule = 1");
    exec("INSERT INTO TASKAPPTS (taGUIDID, taTaskGUIDID, taStartTime, taEndTime) VALUES ('a1', '" +
         std::string(kTask) + "', '2026-01-05 09:00:00.000', '2026-01-05 10:00:00.000')");
    typeDescription("Paint the gate");
    answer(vbNo);
    click("smtActions", "DELETE");
    then([this] {
        EXPECT_EQ(scriptedUi().lastMessage().text, "Delete this task and its Checklist?")
            << "appointments never lengthen the question";
        EXPECT_EQ(scriptedUi().lastMessage().style, vbYesNo | vbInformation);
        EXPECT_EQ(eform().editor("spellTask")->text(), "Paint the gate");
        EXPECT_TRUE(eform().visible());
    });
    answer(vbYes);
    click("smtActions", "DELETE");
    openTask();
    ASSERT_GE(events_.size(), 4u);
    EXPECT_EQ(events_[events_.size() - 3], "TaskDeleted");
    EXPECT_EQ(readInt("SELECT COUNT(*) FROM TASKS"), 1) << "the component removes nothing";
    EXPECT_EQ(readInt("SELECT COUNT(*) FROM TASKAPPTS"), 1);
    EXPECT_EQ(readOne("SELECT tskDesc FROM TASKS"), "Paint the fence");
}

TEST_F(ExistingTaskActionsTest, CatalogSaveCopiesTheTaskAndASecondFailsOnTheKey) {
    addTask(", tskDeadline", ", '2030-01-01 12:00:00.000'");
    linkKeyword(kKeyRed);
    exec("INSERT INTO TASKS (tskGUIDID, tskProjectKey, tskCurrent) VALUES ('other', '" + std::string(kAlpha) +
         "', 1)");
    then([this] { fakeClock().setNow(45400.25); });
    click("smtActions", "UPDATE");
    openTask(5);
    const std::string item = " FROM TASKSCAT WHERE tskGUIDID='" + std::string(kTask) + "'";
    EXPECT_EQ(count("doNewTaskCatItem"), 1);
    // Spent and scheduled times are not copied; tskCurrent reads the list's checked state.
    expectEach([&](const std::string& c) { return readOne("SELECT " + c + item); },
               {{"tskDesc", "Paint the fence"}, {"tskProjectKey", kAlpha}, {"tskTimeNeeded", "90"},
                {"tskTimeSpent", ""}, {"tskTimeScheduled", ""}, {"tskCurrent", "0"}, {"tskCustSortCUR", ""},
                {"tskCustSortQV", "3"}, {"tskCustSortProj", "3"}, {"tskLastMod", dateserial::toIso(45400.25)}});
    EXPECT_EQ(readOne("SELECT tskDeadline" + item).substr(0, 10), "2030-01-01");
    EXPECT_EQ(readInt("SELECT COUNT(*) FROM TaskKeywords WHERE ktTASKGUID='" + std::string(kTask) + "'"), 2)
        << "the item's link joins the task's own";
    EXPECT_EQ(readOne("SELECT tskDesc FROM TASKS WHERE tskGUIDID='" + std::string(kTask) + "'"), "Paint the fence");
    EXPECT_TRUE(g().CurrentTaskGUID.empty());

    // Enter tells TaskUpdated here; the second item fails on the key.
    key(vbKeyReturn);
    openTask(5);
    ASSERT_EQ(reporter().faults().size(), 1u);
    EXPECT_EQ(reporter().faults()[0].procedure, "SaveToTaskCat");
    EXPECT_EQ(readInt("SELECT COUNT(*) FROM TASKSCAT"), 1);
}

TEST_F(ExistingTaskActionsTest, SortNumbersCountOnceAndASlotSkipsTheQuery) {
    addTask();
    for (int i = 0; i < 5; ++i)
        exec("INSERT INTO TASKS (tskGUIDID, tskCurrent) VALUES ('c" + std::to_string(i) + "', 1)");
    look([this] {
        auto& sort = eform().fields().sortNumbers();
        EXPECT_EQ(sort.utilCustCur(), 7) << "six current tasks";
        exec("INSERT INTO TASKS (tskGUIDID, tskCurrent) VALUES ('late', 1)");
        EXPECT_EQ(sort.utilCustCur(), 7) << "a known number asks nothing";
        sort.setUtilCustCur(0);
        EXPECT_EQ(sort.utilCustCur(), 8);
        sort.setUtilCustSortQV(7);
        EXPECT_EQ(sort.utilCustSortQV(), 7);
        EXPECT_EQ(sort.utilCustProj("no such project"), 1);
    });
}

TEST_F(ExistingTaskActionsTest, PickedChecklistEnablesUpdateAndIsSaved) {
    addTask();
    exec("INSERT INTO CHECKLISTS (ckGUIDID, ckName, ckDesc, ckContent) VALUES ('" + std::string(kChecklist) +
         "', 'Morning', 'd', 'wake')");
    click("smtCKActions", "PICK");
    then([this] { eform().checklistLink().ckPicker_CKPicked(kChecklist); });
    then([this] {
        EXPECT_TRUE(tool("smtActions", "UPDATE").enabled()) << "a pick enables UPDATE in this dialog";
        EXPECT_EQ(eform().label("lblCk")->caption(), " Checklist: Morning");
    });
    click("smtActions", "UPDATE");
    openTask();
    EXPECT_EQ(readOne("SELECT tskTCheckListGUID FROM TASKS"), kChecklist);
    EXPECT_EQ(readOne("SELECT tskHasChecklist FROM TASKS"), "1");
}

TEST_F(ExistingTaskActionsTest, TimeToolsAndTheStopwatch) {
    addTask();
    click("smtTimes", "COPYTIMENEEDED");
    then([this] {
        EXPECT_EQ(tool("smtTimes", "TIMESPENT").text(), "1:30");
        EXPECT_EQ(tool("smtABOUT", "SPENT").text(), "1:30");
        EXPECT_TRUE(tool("smtActions", "UPDATE").enabled());
    });
    click("smtTimes", "TIMER");
    then([this] {
        EXPECT_EQ(tool("smtTimes", "TIMER").tag(), "ON");
        EXPECT_EQ(tool("smtTimes", "TIMER").image(), "INUSE");
        fakeClock().advance(65000);
        EXPECT_EQ(tool("smtTimes", "TIMER").text(), "00:01:05");
    });
    click("smtTimes", "ADDFROMTIMER");
    then([this] { EXPECT_EQ(tool("smtTimes", "TIMESPENT").text(), "1:30") << "the clock text reads as 0"; });
    click("smtTimes", "TIMER");
    then([this] {
        EXPECT_EQ(tool("smtTimes", "TIMER").image(), "GRAY");
        EXPECT_FALSE(eform().timer("Timer1")->enabled());
        scriptedUi().queueAnswer(vbOK);
        sheet("smtTimes").userChoose(tool("smtTimes", "TIMESPENT"), "soon");
        EXPECT_EQ(scriptedUi().lastMessage().text, "That value was not recognized as a time period like 1:00.");
        EXPECT_EQ(tool("smtTimes", "TIMESPENT").text(), "0:00");
        sheet("smtTimes").userChoose(tool("smtTimes", "TIMER"), "99:00:00");
        EXPECT_EQ(tool("smtTimes", "TIMER").text(), "00:01:05") << "the clock can't be typed over";
        sheet("smtTimes").userChoose(tool("smtTimes", "TIMESPENT"), "2:15");
        EXPECT_EQ(tool("smtABOUT", "SPENT").text(), "2:15");
    });
    key(vbKeyReturn);
    openTask();
    EXPECT_EQ(readOne("SELECT tskTimeSpent FROM TASKS"), "135");
    EXPECT_EQ(count("TaskUpdated"), 1);
}

}  // namespace qv
