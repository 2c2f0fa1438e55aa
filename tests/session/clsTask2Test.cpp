#include "session/clsTask2.h"

#include <gtest/gtest.h>

#include "dialogs/appointment/frmTAS2.h"
#include "dialogs/existingtask/frmExistingTask.h"
#include "dialogs/newtask/frmTask3.h"
#include "session/globals/SessionGlobals.h"
#include "support/TestEnv.h"
#include "toolkit/Failure.h"
#include "toolkit/Ports.h"

namespace qv {
namespace {

const std::vector<std::string> kUStuff{"u0", "u1", "u2", "u3", "u4", "u5"};

class clsTask2Test : public TestEnv {
protected:
    void SetUp() override {
        TestEnv::SetUp();
        task.setTempErrReport(std::shared_ptr<Reporter>(&reporter(), [](Reporter*) {}));
        task.Raised.connect([this](const HostEvent& e) { names.push_back(e.name); events.push_back(e); });
    }
    // Queues a user action for the dialog that will be shown.
    void then(std::function<void()> action) { scriptedUi().queueAction(std::move(action)); }

    clsTask2 task;
    std::vector<std::string> names;
    std::vector<HostEvent> events;
};

TEST_F(clsTask2Test, ModesWithoutDialogSetOnlyTheOpeningGlobals) {
    for (int32_t mode : {3, 4, 7, -1}) {
        EXPECT_FALSE(task.SetupTask(mode, "KEY", kUStuff, 9, "PRN", "TA", "PRJ"));
        EXPECT_EQ(g().TaskMode, mode);
    }
    EXPECT_EQ(g().UStuff[5], "u5");
    EXPECT_EQ(g().DialogNum, 9);
    EXPECT_EQ(g().TaskPrintDialog, "PRN");
    EXPECT_TRUE(g().CurrentTaskGUID.empty());
    EXPECT_TRUE(names.empty());
    EXPECT_TRUE(scriptedUi().shown().empty());
    EXPECT_EQ(task.frm(), nullptr);
}

TEST_F(clsTask2Test, FiveUserSlotsFailOnTheSixthAfterCopyingFive) {
    g().TaskMode = 42;
    const std::vector<std::string> five{"a", "b", "c", "d", "e"};
    EXPECT_THROW(task.SetupTask(0, "", five, 1, ""), Failure);
    EXPECT_EQ(g().UStuff[4], "e");
    EXPECT_EQ(g().TaskMode, 42);  // nothing past the copy ran
    EXPECT_TRUE(scriptedUi().shown().empty());
}

TEST_F(clsTask2Test, EntryResultsAreAsymmetric) {
    EXPECT_FALSE(task.SetMOP("MOPKEY"));
    EXPECT_TRUE(task.SetTaskPrintSetting("HELP"));
    EXPECT_EQ(g().MOP, "MOPKEY");
    EXPECT_EQ(g().TaskPrintSetting, "HELP");
}

TEST_F(clsTask2Test, LoadingTaskComesAfterTheDialogInMode1AndBeforeItInModes5And6) {
    std::vector<bool> dialogExisted;
    task.LoadingTask.connect([&] { dialogExisted.push_back(task.frmE() != nullptr || task.frm() != nullptr); });

    then([&] { task.frmE()->CloseTaskForm(); });
    task.SetupTask(1, "TASKKEY", kUStuff, 0, "");
    EXPECT_EQ(g().CurrentTaskGUID, "TASKKEY");
    EXPECT_TRUE(g().EditingExisting);

    clsTask2 fresh5;
    fresh5.LoadingTask.connect([&] { dialogExisted.push_back(fresh5.frmE() != nullptr); });
    scriptedUi().queueAction([&] { fresh5.frmE()->CloseTaskForm(); });
    fresh5.SetupTask(5, "TASKKEY", kUStuff, 0, "");

    clsTask2 fresh6;
    fresh6.LoadingTask.connect([&] { dialogExisted.push_back(fresh6.frm() != nullptr); });
    scriptedUi().queueAction([&] { fresh6.frm()->TaskCanceled("x"); });
    fresh6.SetupTask(6, "CATKEY", kUStuff, 0, "");
    EXPECT_EQ(g().TaskCatGUID, "CATKEY");
    EXPECT_TRUE(g().CurrentTaskGUID.empty() || g().CurrentTaskGUID.size() == 36);

    EXPECT_EQ(dialogExisted, (std::vector<bool>{true, false, false}));
}

TEST_F(clsTask2Test, NoLoadingTaskInModes0And2) {
    then([&] { task.frm()->TaskCanceled(""); });
    task.SetupTask(0, "", kUStuff, 0, "");
    EXPECT_FALSE(g().EditingExisting);
    then([&] { task.frmWorkTAS()->CancelTASEdit(); });
    task.SetupTask(2, "TAKEY", kUStuff, 0, "", "TAGUID");
    EXPECT_EQ(g().CurrentTAGUID, "TAGUID");
    EXPECT_EQ(std::count(names.begin(), names.end(), "LoadingTask"), 0);
    // The New Task dialog's own unload tells of the close once more.
    EXPECT_EQ(names, (std::vector<std::string>{"DoCloseTaskForm", "DoCloseTaskForm", "DoCloseTaskForm"}));
}

TEST_F(clsTask2Test, NewTaskDialogEventsReachTheHostAsTheirOwn) {
    then([&] {
        auto& f = *task.frm();
        f.TaskIsNewButDone();
        f.NewTask();
        f.NewTaskCATTask();
        f.ProjectAdded("R&D");
        f.KeywordAdded();
        f.CloseTaskForm();
    });
    task.SetupTask(0, "", kUStuff, 0, "");
    EXPECT_EQ(names, (std::vector<std::string>{"NewTaskIsDone", "NewTask", "doNewTaskCatItem", "ProjectAdded",
                                               "KeywordAdded", "DoCloseTaskForm"}));
    EXPECT_EQ(events[3].args, std::vector<std::string>{"R&D"});
    // Closing only hides: the dialog stays loaded and referenced.
    ASSERT_NE(task.frm(), nullptr);
    EXPECT_TRUE(task.frm()->loaded());
    EXPECT_FALSE(task.frm()->visible());
}

TEST_F(clsTask2Test, ExistingTaskEventsKeepTheirArgumentsAndOrder) {
    g().DialogNum = 0;
    then([&] {
        auto& f = *task.frmE();
        f.FireOneOutlookTaskUpdate("ENTRY", "TASK");
        f.TaskDeleted("DEADKEY");
        g().TaskPrintDialog = "CHANGED";
        f.SavePrintInfoNowHere();
        f.TaskUpdated();
        f.TaskIsDone();
        f.TaskCanceled("ignored");
    });
    task.SetupTask(1, "K", kUStuff, 4, "PRN");
    ASSERT_EQ(events.size(), 7u);
    EXPECT_EQ(events[1].name, "Fire1OutlookTaskUpdate");
    EXPECT_EQ(events[1].args, (std::vector<std::string>{"ENTRY", "TASK"}));
    EXPECT_EQ(events[2].args, std::vector<std::string>{"DEADKEY"});
    EXPECT_EQ(events[3].name, "updateMainPrintInfo");
    EXPECT_EQ(events[3].args, (std::vector<std::string>{"CHANGED", "4"}));
    EXPECT_EQ(events[6].name, "DoCloseTaskForm");
    EXPECT_FALSE(task.frmE()->loaded());
}

TEST_F(clsTask2Test, AppointmentCloseIsSilentWhenHiddenAndClearsOnlyItsReference) {
    then([&] {
        auto keep = task.frmWorkTAS();
        keep->TASisDone();  // declared, relayed, but no code raises it
        keep->TASWasChanged();
        keep->CloseTASForm();
        EXPECT_EQ(task.frmWorkTAS(), nullptr);
        keep->CloseTASForm();  // hidden now: nothing
    });
    task.SetupTask(2, "TA", kUStuff, 0, "");
    EXPECT_EQ(names, (std::vector<std::string>{"TASCompleted", "TASUpdated", "DoCloseTaskForm"}));
}

TEST_F(clsTask2Test, TaskEditReentersWithMode1AndTheNestedGlobalsWin) {
    then([&] { task.frmWorkTAS()->TaskEdit("NESTEDTASK"); });
    then([&] {
        EXPECT_EQ(scriptedUi().modalDepth(), 2);
        task.frmE()->CloseTaskForm();
    });
    then([&] {
        EXPECT_TRUE(task.frmWorkTAS()->visible());  // the appointment stays as it was
        task.frmWorkTAS()->CancelTASEdit();
    });
    task.SetupTask(2, "TAOWN", kUStuff, 3, "PRN", "TA");
    EXPECT_EQ(g().TaskMode, 1);
    EXPECT_EQ(g().CurrentTaskGUID, "NESTEDTASK");
    EXPECT_EQ(g().DialogNum, 3);
    EXPECT_EQ(names, (std::vector<std::string>{"LoadingTask", "DoCloseTaskForm", "DoCloseTaskForm"}));
    EXPECT_EQ(task.frmWorkTAS(), nullptr);
}

TEST_F(clsTask2Test, AFaultReachesTheHostOnceAsGotErrExitNow) {
    then([&] {
        task.frm()->GotErrExitNow();
        reporter().GotErrExitNow();
        task.frm()->TaskCanceled("");
    });
    task.SetupTask(0, "", kUStuff, 0, "");
    EXPECT_EQ(names, (std::vector<std::string>{"GotErrExitNow", "DoCloseTaskForm", "DoCloseTaskForm"}));
    EXPECT_EQ(std::count(names.begin(), names.end(), "doUnnatDeath"), 0);
}

TEST_F(clsTask2Test, AStoreFaultWhileSettingUpEndsTheSessionWithoutShowingTheDialog) {
    QV_FILE_STORE_ONLY();
    exec("DROP TABLE PROJECTS");
    task.SetupTask(0, "", kUStuff, 0, "");  // no action queued: showing it would fail the script
    ASSERT_FALSE(reporter().faults().empty());
    EXPECT_EQ(reporter().faults()[0].module, "clsVLProjectsList");
    EXPECT_EQ(std::count(names.begin(), names.end(), "GotErrExitNow"), 1);
    EXPECT_FALSE(task.frm()->loaded());

    then([&] { task.frm()->TaskCanceled(""); });  // the next session starts afresh
    exec("CREATE TABLE PROJECTS (prjGUIDID TEXT, prjProject TEXT, prjSummary TEXT, prjDeadline DATETIME, "
         "StatusLong INTEGER)");
    task.SetupTask(0, "", kUStuff, 0, "");
    EXPECT_EQ(names.back(), "DoCloseTaskForm");
}

}  // namespace
}  // namespace qv
