// The host's own window over the shared store: the task list and its
// filters; Open Task and Save to Catalog on the selected row, and the
// removal the host does when the dialog tells it a task was deleted; and a
// store that can't be used: one report, no dialog, the window still there,
// and pointed at another folder, it works again.
#include <QAbstractItemModelTester>
#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QMessageBox>
#include <QTemporaryDir>
#include <fstream>

#include "HostFixture.h"
#include "view/HostSession.h"
#include "view/HostStore.h"
#include "view/HostWindow.h"
#include "view/TaskTableModel.h"

namespace qv {
namespace {

class HostList : public HostFixture {
protected:
    void addTask(const char* key, const char* desc, const char* projectKey, int current, int sort) const {
        exec(std::string("INSERT INTO TASKS (tskGUIDID, tskDesc, tskProject, tskProjectKey, tskStatus, ") +
             "tskTimeNeeded, tskTimeSpent, tskPossPoints, tskCurrent, tskCustSortQV, tskCustSortCUR, tskDeadline) " +
             "VALUES ('" + key + "', '" + desc + "', 'Home', '" + projectKey + "', 1, 90, 30, 12, " +
             std::to_string(current) + ", " + std::to_string(sort) + ", " + std::to_string(sort) +
             ", '2024-01-15T17:30:00.000')");
    }
};

TEST_F(HostList, ShowsFiltersAndDropsDeletedTasks) {
    exec("INSERT INTO PROJECTS (prjGUIDID, prjProject) VALUES ('P1', 'Home'), ('P2', 'Work')");
    addTask("T1", "Paint the fence", "P1", 0, 2);
    addTask("T2", "File the taxes\nwith receipts", "P2", -1, 1);
    HostWindow& w = host().window();
    w.refresh();
    TaskTableModel& list = w.tasks();
    QAbstractItemModelTester tester(&list, QAbstractItemModelTester::FailureReportingMode::Warning);

    ASSERT_EQ(list.rowCount(), 2);
    // The host's own order, first line of the description only.
    EXPECT_EQ(list.data(list.index(0, TaskTableModel::Desc)).toString(), "File the taxes");
    EXPECT_EQ(list.data(list.index(1, TaskTableModel::Deadline)).toString(), "2024-01-15 17:30");
    EXPECT_EQ(list.data(list.index(1, TaskTableModel::TimeNeeded)).toString(), "1:30");
    EXPECT_EQ(list.data(list.index(1, TaskTableModel::Points)).toInt(), 12);
    EXPECT_FALSE(list.data(list.index(1, TaskTableModel::Status)).toString().isEmpty());

    w.findChild<QCheckBox*>("chkCurrent")->setChecked(true);
    ASSERT_EQ(list.rowCount(), 1);
    EXPECT_EQ(list.rowAt(0)->guid, "T2");
    w.findChild<QCheckBox*>("chkCurrent")->setChecked(false);

    auto* project = w.findChild<QComboBox*>("cboProject");
    project->setCurrentIndex(project->findData("P1"));
    EXPECT_EQ(w.chosenProject(), "P1");
    ASSERT_EQ(list.rowCount(), 1);
    EXPECT_EQ(list.rowAt(0)->guid, "T1");

    host().store().deleteTask("T1");
    w.refresh();
    EXPECT_EQ(list.rowCount(), 0);
    EXPECT_TRUE(TaskTableModel::deadlineText("1899-12-30T00:00:00.000").isEmpty());
    EXPECT_EQ(TaskTableModel::deadlineText("2026-03-15T16:59:59.998"), "2026-03-15 17:00");
    EXPECT_EQ(TaskTableModel::deadlineText("2026-03-15T16:59:29.000"), "2026-03-15 16:59");
    EXPECT_EQ(TaskTableModel::deadlineText("2026-03-15T23:59:59.998"), "2026-03-16");
}

const QString kForm = "frmExistingTask";
const char* const kKey = "T0000000-0000-0000-0000-000000000001";

class ExistingTaskHost : public HostFixture {
protected:
    void SetUp() override {
        HostFixture::SetUp();
        exec("INSERT INTO PROJECTS (prjGUIDID, prjProject) VALUES ('P0000000-0000-0000-0000-000000000001', 'Home')");
        exec("INSERT INTO KEYWORDS (keyGUIDID, keySubject, keyKeyword) VALUES ('K1', 'Where', 'Outside')");
        exec(std::string("INSERT INTO TASKS (tskGUIDID, tskDesc, tskProject, tskProjectKey, tskStatus, tskImp, ") +
             "tskDifficulty, tskTimeNeeded, tskTimeSpent, tskCurrent) VALUES ('" + kKey +
             "', 'Paint the fence', 'Home', 'P0000000-0000-0000-0000-000000000001', 1, 2, 2, 60, 0, 1)");
        exec(std::string("INSERT INTO TaskKeywords (ktTASKGUID, ktTask, ktKEYGUID, ktKeyword) VALUES ('") + kKey +
             "', 'Paint the fence', 'K1', 'Outside')");
        exec(std::string("INSERT INTO TASKAPPTS (taGUIDID, taTaskGUIDID) VALUES ('A1', '") + kKey + "')");
        host().window().refresh();
    }
    QAction* action(const char* name) const { return host().window().findChild<QAction*>(name); }
};

TEST_F(ExistingTaskHost, OpenTaskThenDeleteRemovesTheTaskWithItsRows) {
    HostWindow& w = host().window();
    EXPECT_FALSE(action("actOpenTask")->isEnabled()) << "no task selected yet";
    w.selectTask(kKey);
    EXPECT_TRUE(action("actOpenTask")->isEnabled());
    EXPECT_TRUE(action("actSaveToCatalog")->isEnabled());

    StepRunner steps;
    steps.onMessageBox([](QMessageBox&) { return 0; });  // Yes
    steps.when("delete", [] { return StepRunner::formWindow(kForm) != nullptr; },
               [] { StepRunner::clickTool(kForm, "smtActions.DELETE"); });
    run(steps, [&w] { w.openTask(); });

    EXPECT_TRUE(ranAll(steps));
    EXPECT_TRUE(steps.messages().join("|").contains("Delete this task?")) << steps.messages().join("|").toStdString();
    EXPECT_EQ(count("SELECT count(*) FROM TASKS"), 0);
    EXPECT_EQ(count("SELECT count(*) FROM TaskKeywords"), 0);
    EXPECT_EQ(count("SELECT count(*) FROM TASKAPPTS"), 0);
    EXPECT_EQ(w.tasks().rowCount(), 0);
    EXPECT_TRUE(log().contains("13 TaskDeleted")) << log().toStdString();
}

TEST_F(ExistingTaskHost, SaveToCatalogFilesTheSelectedTask) {
    HostWindow& w = host().window();
    w.selectTask(kKey);
    StepRunner steps;
    steps.when("save", [] { return StepRunner::formWindow(kForm) != nullptr; },
               [] { StepRunner::clickTool(kForm, "smtActions.UPDATE"); });
    run(steps, [&w] { w.saveToCatalog(); });

    EXPECT_TRUE(ranAll(steps));
    EXPECT_EQ(text(std::string("SELECT tskDesc FROM TASKSCAT WHERE tskGUIDID='") + kKey + "'"), "Paint the fence");
    EXPECT_TRUE(log().contains("6 doNewTaskCatItem")) << log().toStdString();
}

TEST_F(HostFixture, ABrokenStoreIsToldOnceAndTheHostCanMoveToAnotherFolder) {
    {
        std::ofstream junk(folder() + "/QuorvelData.mdb", std::ios::binary | std::ios::trunc);
        junk << std::string(4096, 'x');
    }
    StepRunner steps(3000);
    steps.when("no dialog comes", [] { return true; }, [] {});
    openNewTask(steps);
    EXPECT_TRUE(host().session().ended());
    EXPECT_FALSE(shown("frmTask3"));
    const QString log = HostFixture::log();
    EXPECT_EQ(log.count("Fault:"), 1) << log.toStdString();
    EXPECT_TRUE(log.contains("is not a Quorvel data file")) << log.toStdString();
    EXPECT_EQ(log.count("GotErrExitNow"), 1) << log.toStdString();

    QTemporaryDir other;
    host().session().useFolder(other.path().toStdString());
    EXPECT_EQ(host().store().folder(), other.path().toStdString());
    EXPECT_FALSE(host().session().ended());
    StepRunner again;
    again.when("New Task is shown", [] { return shown("frmTask3"); },
               [] { StepRunner::clickTool("frmTask3", "smtActions.DONE"); }, kStartTimerSettleMs);
    openNewTask(again);
    EXPECT_TRUE(ranAll(again));
    EXPECT_FALSE(host().session().ended());
}

}  // namespace
}  // namespace qv
