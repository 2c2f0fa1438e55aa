// The Task Appointment dialog through its real window, opened from the
// host's list of a task's appointments.
#include <QCheckBox>
#include <QLineEdit>
#include <QListWidget>
#include <QTabBar>
#include <QTableView>

#include "HostFixture.h"
#include "kit/ToolCell.h"
#include "view/AppointmentList.h"
#include "view/HostStore.h"
#include "view/HostWindow.h"

namespace qv {
namespace {

const QString kForm = "frmTAS2";
const char* const kTask = "11111111-0000-0000-0000-000000000001";
const char* const kSlot = "22222222-0000-0000-0000-000000000001";

class AppointmentWindow : public HostFixture {
protected:
    void SetUp() override {
        HostFixture::SetUp();
        exec(std::string("INSERT INTO TASKS (tskGUIDID, tskDesc, tskStatus, tskImp, tskDifficulty, tskTimeNeeded, "
                         "tskTimeScheduled, tskCurrent, tskCustSortQV) VALUES ('") +
             kTask + "', 'Sweep the yard', 3, 1, 1, 60, 0, 1, 1)");
        exec(std::string("INSERT INTO TASKAPPTS (taGUIDID, taTaskGUIDID, taStartTime, taEndTime, taTaskDesc, taImp, "
                         "taDifficulty, taWasWorked, taDuration) VALUES ('") +
             kSlot + "', '" + kTask +
             "', '2026-11-24T08:00:00.000', '2026-11-24T08:45:00.000', 'Sweep the yard', 1, 1, 0, 45)");
    }
    static QWidget* window() { return StepRunner::formWindow(kForm); }
    static QAbstractButton* button(const QString& name) { return HostFixture::button(kForm, name); }
    static QLineEdit* edit(const QString& name) {
        ToolCell* c = cell(kForm, name);
        return c ? c->findChild<QLineEdit*>() : nullptr;
    }
    // Chooses the task and its appointment in the host's lists, then works it.
    void workFromHost(StepRunner& steps) {
        HostWindow& w = host().window();
        w.refresh();
        auto* table = w.findChild<QTableView*>("tblTasks");
        table->setCurrentIndex(table->model()->index(0, 0));
        ASSERT_EQ(w.appointments().count(), 1) << "the chosen task's appointments are listed";
        w.appointments().setCurrentRow(0);
        run(steps, [&w] { w.workAppointment(); });
    }
};

TEST_F(AppointmentWindow, TaskIsDoneAndUpdateStoresTheSlotAndCompletesTheTask) {
    StepRunner steps;
    steps.when("open", [] { return window() != nullptr; }, [] {
        EXPECT_EQ(window()->windowTitle(), "Quorvel - Version 1.14 - Task Appointment");
        EXPECT_FALSE(button("smtActions.SAVE")->isEnabled());
        auto* done = cell(kForm, "smtReady.DONE")->findChild<QCheckBox*>();
        QTest::mouseClick(done, Qt::LeftButton, {}, QPoint(4, done->height() / 2));
    }, 200);
    steps.when("update", [] { return button("smtActions.SAVE")->isEnabled(); }, [] {
        EXPECT_EQ(edit("smtTimes.TIMESPENT")->text(), "0:45");
        QTest::mouseClick(button("smtActions.SAVE"), Qt::LeftButton);
    });
    steps.when("closed", [] { return window() == nullptr; }, [] {});
    workFromHost(steps);

    EXPECT_TRUE(ranAll(steps));
    EXPECT_EQ(text("SELECT taTimeWorked FROM TASKAPPTS"), "45");
    EXPECT_EQ(text("SELECT taWasWorked FROM TASKAPPTS"), "1");
    EXPECT_EQ(text("SELECT tskStatus FROM TASKS"), "0");
    EXPECT_EQ(text("SELECT tskTimeScheduled FROM TASKS"), "45");
    EXPECT_TRUE(log().contains("1 TASUpdated")) << log().toStdString();
    EXPECT_LT(log().indexOf("1 TASUpdated"), log().lastIndexOf("7 DoCloseTaskForm"));
    EXPECT_TRUE(host().window().appointments().item(0)->text().contains("(worked)"));
}

TEST_F(AppointmentWindow, TypedTimeIsJudgedWhenLeftAndTabsFollowTheModel) {
    StepRunner steps;
    steps.when("type", [] { return window() != nullptr; }, [] {
        QLineEdit* spent = edit("smtTimes.TIMESPENT");
        spent->setFocus();
        spent->selectAll();
        QTest::keyClicks(spent, "abc");
        QTest::keyClick(spent, Qt::Key_Tab);
    }, 200);
    steps.when("judged", [&steps] { return !steps.messages().isEmpty(); }, [] {
        EXPECT_EQ(edit("smtTimes.TIMESPENT")->text(), "0:00");
        auto* tabs = window()->findChild<QTabBar*>("Tabs1.bar");
        ASSERT_NE(tabs, nullptr);
        EXPECT_EQ(tabs->currentIndex(), 0) << "the checklist page first";
        QTest::mouseClick(tabs, Qt::LeftButton, {}, tabs->tabRect(2).center());
        EXPECT_EQ(tabs->currentIndex(), 2);
        EXPECT_TRUE(cell(kForm, "smtABOUT.STATUS")) << "the About page is there when chosen";
    }, 100);
    steps.then("escape", [] { QTest::keyClick(window(), Qt::Key_Escape); });
    steps.when("closed", [] { return window() == nullptr; }, [] {});
    workFromHost(steps);

    EXPECT_TRUE(ranAll(steps));
    ASSERT_FALSE(steps.messages().isEmpty());
    EXPECT_EQ(steps.messages().first(), "That value was not recognized as a time period like 1:00.");
    EXPECT_EQ(text("SELECT taTimeWorked FROM TASKAPPTS"), "") << "Escape stores nothing";
}

TEST_F(AppointmentWindow, TheHostsListShowsAnEndAtMidnight) {
    exec(std::string("INSERT INTO TASKAPPTS (taGUIDID, taTaskGUIDID, taStartTime, taEndTime, taTaskDesc, taImp, "
                     "taDifficulty, taWasWorked, taDuration) VALUES ('late', '") +
         kTask + "', '2026-11-24T23:00:00.000', '2026-11-25', 'Lock the gate', 1, 1, 1, 60)");
    HostStore store(folder());
    AppointmentList list(store);
    list.showTask(kTask);
    ASSERT_EQ(list.count(), 2);
    EXPECT_EQ(list.item(0)->text(), "2026-11-24 08:00 - 08:45  Sweep the yard");
    EXPECT_EQ(list.item(1)->text(), "2026-11-24 23:00 - 00:00  Lock the gate  (worked)");
}

TEST_F(AppointmentWindow, EditTaskOpensTheTaskAboveTheAppointment) {
    StepRunner steps;
    steps.when("edit", [] { return window() != nullptr; },
               [] { QTest::mouseClick(button("smtActions.EDIT"), Qt::LeftButton); }, 200);
    steps.when("nested", [] { return StepRunner::formWindow("frmExistingTask") != nullptr; }, [] {
        EXPECT_NE(window(), nullptr) << "the appointment stays open beneath";
        StepRunner::formWindow("frmExistingTask")->close();
    }, 100);
    steps.when("both closed", [] { return window() == nullptr; }, [] {});
    workFromHost(steps);

    EXPECT_TRUE(ranAll(steps));
    EXPECT_TRUE(log().contains("2 LoadingTask")) << log().toStdString();
    EXPECT_FALSE(log().contains("TASUpdated"));
}

}  // namespace
}  // namespace qv
