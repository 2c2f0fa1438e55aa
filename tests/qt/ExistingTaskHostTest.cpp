// The host's commands on a stored task: Open Task and Save to Catalog on
// the selected row, and the removal the host does when the dialog tells it
// a task was deleted.
#include <QAction>
#include <QMessageBox>

#include "HostFixture.h"
#include "view/HostWindow.h"
#include "view/TaskTableModel.h"

namespace qv {
namespace {

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
    EXPECT_EQ(action("actNewTask")->shortcut(), QKeySequence(QKeySequence::New));

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

}  // namespace
}  // namespace qv
