// The host's task list over the shared store.
#include <QAbstractItemModelTester>
#include <QCheckBox>
#include <QComboBox>

#include "HostFixture.h"
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

}  // namespace
}  // namespace qv
