// The Existing Task dialog driven through its real window, from the host:
// the schedule grid and the stopwatch.
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QTabBar>
#include <QTableView>
#include <QTextEdit>

#include "HostFixture.h"
#include "kit/GridModel.h"
#include "kit/GridView.h"
#include "kit/TabStripView.h"
#include "kit/ToolCell.h"
#include "toolkit/Grid.h"

namespace qv {
namespace {

const QString kForm = "frmExistingTask";
constexpr const char* kTask = "99999999-0000-0000-0000-000000000009";

class ExistingTaskWindow : public HostFixture {
protected:
    void SetUp() override {
        HostFixture::SetUp();
        exec("INSERT INTO PROJECTS (prjGUIDID, prjProject) VALUES ('AAAAAAAA-0000-0000-0000-000000000001', 'Home')");
        exec(std::string("INSERT INTO TASKS (tskGUIDID, tskDesc, tskProject, tskProjectKey, tskStatus, tskImp, "
                         "tskDifficulty, tskTimeNeeded, tskTimeSpent, tskCurrent, tskHasSchedule, tskCreatedDate) "
                         "VALUES ('") + kTask + "', 'Paint the fence', 'Home', 'AAAAAAAA-0000-0000-0000-000000000001', "
             "1, 2, 3, 90, 0, 1, 0, '2026-01-05 08:00:00.000')");
    }
    static QWidget* window() { return StepRunner::formWindow(kForm); }
    static GridView* grid() { return window() ? window()->findChild<GridView*>("gridSked") : nullptr; }
    static QTableView* table() { return grid()->table(); }
    static QModelIndex at(int row, const char* key) {
        return grid()->model()->index(row, grid()->viewColumnOf(key));
    }
    static QString shownAt(int row, const char* key) { return at(row, key).data().toString(); }
    static QAbstractButton* button(const QString& name) { return HostFixture::button(kForm, name); }
    static QAbstractButton* stopwatch() {
        return window()->findChild<QAbstractButton*>("smtTimes.TIMER.press");
    }
    static QString toolText(const QString& name) {
        ToolCell* c = cell(kForm, name);
        auto* edit = c ? c->findChild<QLineEdit*>() : nullptr;
        return edit ? edit->text() : QString();
    }
    static void scheduleTab() { window()->findChild<TabStripView*>("Tabs1")->bar()->setCurrentIndex(1); }
};

TEST_F(ExistingTaskWindow, ScheduleAddEditButtonAndStopwatch) {
    StepRunner steps(10000);
    steps.when("schedule tab", [] { return grid() != nullptr; }, [] {
        EXPECT_EQ(QApplication::focusWidget(), window()->findChild<QTextEdit*>("spellTask"))
            << "typing starts in the task, not in " << QApplication::focusWidget()->objectName().toStdString();
        scheduleTab();
    }, 300);
    steps.then("add", [] { QTest::mouseClick(button("smtSkedBtns.ADD"), Qt::LeftButton); });
    // The new appointment is first, with its Duration.
    steps.when("added", [] { return grid()->model()->rowCount() == 1; }, [] {
        EXPECT_EQ(shownAt(0, "CalcColumn"), "1:00");
        EXPECT_EQ(grid()->findChild<QLabel*>("gridSked.caption")->text(), "Task Appointments: 1");
        // Times outside edit mode.
        EXPECT_EQ(shownAt(0, "taStartTime").size(), 5) << shownAt(0, "taStartTime").toStdString();
        table()->setCurrentIndex(at(0, "taStartTime"));
        table()->edit(at(0, "taStartTime"));
        auto* editor = qobject_cast<QLineEdit*>(table()->indexWidget(at(0, "taStartTime")));
        ASSERT_NE(editor, nullptr);
        EXPECT_GT(editor->text().size(), 10) << "the date while editing";
        editor->setText("some day");
        QTest::keyClick(editor, Qt::Key_Return);
    });
    std::string startBefore;
    steps.when("start kept", [] { return !grid()->grid().editing(); }, [this, &startBefore] {
        startBefore = text("SELECT taStartTime FROM TASKAPPTS");
        EXPECT_EQ(shownAt(0, "taStartTime").size(), 5);
        // ">>" stores the planned time as the time spent, in minutes.
        QTest::mouseClick(table()->viewport(), Qt::LeftButton, {}, table()->visualRect(at(0, "BtnColumn")).center());
    });
    steps.when("minutes stored", [this] { return text("SELECT taTimeWorked FROM TASKAPPTS") == "60"; }, [] {
        EXPECT_EQ(shownAt(0, "FakeColumn"), "1:00");
        QTest::mouseClick(stopwatch(), Qt::LeftButton);
    });
    steps.when("ticking", [] { return toolText("smtTimes.TIMER") == "00:00:01"; }, [] {
        QTest::mouseClick(stopwatch(), Qt::LeftButton);
    });
    QString stoppedAt;
    steps.when("stopped", [] { return true; }, [&stoppedAt] { stoppedAt = toolText("smtTimes.TIMER"); }, 1300);
    steps.then("still stopped", [&stoppedAt] { EXPECT_EQ(toolText("smtTimes.TIMER"), stoppedAt); });
    steps.then("cancel, answering Yes", [] { QTest::mouseClick(button("smtActions.DONE"), Qt::LeftButton); });
    steps.when("closed", [] { return !shown(kForm); }, [] {});
    openTask(steps, kTask);

    EXPECT_TRUE(ranAll(steps));
    EXPECT_EQ(count("SELECT count(*) FROM TASKAPPTS"), 1);
    EXPECT_EQ(text("SELECT taStartTime FROM TASKAPPTS"), startBefore) << "a start that is no date changes nothing";
    EXPECT_FALSE(shown(kForm));
}

}  // namespace
}  // namespace qv
