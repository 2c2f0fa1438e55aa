// The New Task dialog driven through its real window, from the host.
#include <QAbstractButton>
#include <QApplication>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QTest>
#include <QTextEdit>

#include "HostFixture.h"
#include "kit/SheetModel.h"
#include "kit/SheetWidget.h"
#include "kit/ToolCell.h"
#include "view/HostWindow.h"
#include "view/TaskTableModel.h"

namespace qv {
namespace {

const QString kForm = "frmTask3";

class NewTaskWindow : public HostFixture {
protected:
    static QWidget* window() { return StepRunner::formWindow(kForm); }
    static QTextEdit* description() { return window()->findChild<QTextEdit*>("spellTask"); }
    static QAbstractButton* button(const QString& form, const QString& name) {
        ToolCell* c = cell(form, name);
        return c ? qobject_cast<QAbstractButton*>(c->control()) : nullptr;
    }
    static bool enabled(const QString& form, const QString& name) {
        QAbstractButton* b = button(form, name);
        return b && b->isEnabled() && b->isVisible();
    }
    // Waits for the window with the start timer's defaults in.
    static void whenOpen(StepRunner& steps, const QString& name, StepRunner::Action act) {
        steps.when(name, [] { return window() != nullptr; }, std::move(act), kStartTimerSettleMs);
    }
};

TEST_F(NewTaskWindow, TypedTaskLandsInTheStoreAndTheHostList) {
    // A task needs a project; the first in the list is the default.
    exec("INSERT INTO PROJECTS (prjGUIDID, prjProject) VALUES ('AAAAAAAA-0000-0000-0000-000000000001', 'Home')");
    StepRunner steps;
    whenOpen(steps, "type", [] { QTest::keyClicks(description(), "Renew the passport"); });
    steps.when("add", [] { return enabled(kForm, "smtActions.QV2"); },
               [] { QTest::mouseClick(button(kForm, "smtActions.QV2"), Qt::LeftButton, {}, QPoint(8, 8)); });
    // After the save (and its banner) the close tool reads "D&one" again.
    steps.when("done", [this] { return count("SELECT count(*) FROM TASKS") == 1 && button(kForm, "smtActions.DONE")->text() == "D&one"; },
               [] { QTest::mouseClick(button(kForm, "smtActions.DONE"), Qt::LeftButton); });
    openNewTask(steps);

    EXPECT_TRUE(steps.skipped().isEmpty()) << steps.skipped().join(", ").toStdString();
    EXPECT_FALSE(shown(kForm));
    EXPECT_EQ(count("SELECT count(*) FROM TASKS WHERE tskDesc='Renew the passport'"), 1);
    // The host's list followed the NewTask event.
    const TaskTableModel& list = host().window().tasks();
    ASSERT_EQ(list.rowCount(), 1);
    EXPECT_EQ(list.data(list.index(0, TaskTableModel::Desc)).toString(), "Renew the passport");
    EXPECT_FALSE(list.data(list.index(0, TaskTableModel::Status)).toString().isEmpty());
    // Every event of the session is in the host's log, in order.
    const QString log = host().window().findChild<QPlainTextEdit*>("txtLog")->toPlainText();
    EXPECT_TRUE(log.contains("5 NewTask")) << log.toStdString();
    EXPECT_LT(log.indexOf("5 NewTask"), log.lastIndexOf("7 DoCloseTaskForm"));
    // The dialog's own close after a save asks nothing.
    EXPECT_TRUE(steps.messages().isEmpty()) << steps.messages().join(" | ").toStdString();
}

TEST_F(NewTaskWindow, EscapeOnAChangedDialogAsksFirst) {
    StepRunner steps;
    int answers = 0;
    steps.onMessageBox([&answers](QMessageBox&) { return ++answers == 1 ? QMessageBox::No : QMessageBox::Yes; });
    whenOpen(steps, "type", [] { QTest::keyClicks(description(), "Half a thought"); });
    steps.then("escape", [] { QTest::keyClick(window(), Qt::Key_Escape); });
    // No keeps the dialog as it was.
    steps.when("still open after No", [&answers] { return answers == 1 && window() && !QApplication::activeModalWidget()->inherits("QMessageBox"); },
               [] { QTest::keyClick(window(), Qt::Key_Escape); }, 100);
    steps.when("closed after Yes", [] { return window() == nullptr; }, [] {});
    openNewTask(steps);

    EXPECT_TRUE(steps.skipped().isEmpty()) << steps.skipped().join(", ").toStdString();
    ASSERT_EQ(steps.messages().size(), 2);
    EXPECT_EQ(steps.messages()[0], "Cancel creating the current task?");
    EXPECT_EQ(count("SELECT count(*) FROM TASKS"), 0);
}

TEST_F(NewTaskWindow, ProjectAddedThroughItsWindowComesUpChosen) {
    StepRunner steps;
    whenOpen(steps, "new project", [] { QTest::mouseClick(button(kForm, "smtProj.kNEWPROJECT"), Qt::LeftButton); });
    steps.when("name it", [] { return shown("frmAddProject"); }, [] {
        auto* name = cell("frmAddProject", "smtProject.txName")->findChild<QLineEdit*>();
        QTest::keyClicks(name, "Garden & Shed");
        QTest::keyClicks(cell("frmAddProject", "smtProject.txSummary")->findChild<QLineEdit*>(), "Spring work");
        QTest::mouseClick(button("frmAddProject", "smtAction.OK"), Qt::LeftButton);
    });
    steps.when("close Add Project", [this] { return count("SELECT count(*) FROM PROJECTS") == 1; },
               [] { QTest::mouseClick(button("frmAddProject", "smtAction.CANCEL"), Qt::LeftButton); }, 100);
    steps.when("chosen in the list", [this] {
        if (shown("frmAddProject")) return false;
        const QString key = QString::fromStdString(text("SELECT prjGUIDID FROM PROJECTS"));
        ToolCell* option = cell(kForm, "smtProj." + key);
        auto* radio = option ? qobject_cast<QRadioButton*>(option->control()) : nullptr;
        return radio && radio->isChecked();
    }, [] { QTest::mouseClick(button(kForm, "smtActions.DONE"), Qt::LeftButton); });
    openNewTask(steps);

    EXPECT_TRUE(steps.skipped().isEmpty()) << steps.skipped().join(", ").toStdString()
                                           << steps.messages().join(" | ").toStdString();
    EXPECT_EQ(count("SELECT count(*) FROM PROJECTS WHERE prjProject='Garden & Shed'"), 1);
}

TEST_F(NewTaskWindow, KeywordAddedThroughItsWindowJoinsTheList) {
    StepRunner steps;
    whenOpen(steps, "new keyword", [] { QTest::mouseClick(button(kForm, "smtKeywords.kNEWKEYWORD"), Qt::LeftButton); });
    steps.when("type it", [] { return shown("frmAddKeyword"); }, [] {
        QTest::keyClicks(cell("frmAddKeyword", "smtKeywords.CATEGORY")->findChild<QLineEdit*>(), "Places");
        QTest::keyClicks(cell("frmAddKeyword", "smtKeywords.KEYWORD")->findChild<QLineEdit*>(), "Garden");
        QTest::mouseClick(button("frmAddKeyword", "smtAction.ADD"), Qt::LeftButton);
    });
    steps.when("close Add Keyword", [this] { return count("SELECT count(*) FROM KEYWORDS") == 1; },
               [] { QTest::mouseClick(button("frmAddKeyword", "smtAction.OK"), Qt::LeftButton); }, 100);
    steps.when("in the list", [this] {
        if (shown("frmAddKeyword")) return false;
        ToolCell* box = cell(kForm, "smtKeywords." + QString::fromStdString(text("SELECT keyGUIDID FROM KEYWORDS")));
        return box && box->kind() == ToolCell::Kind::Check && cell(kForm, "smtKeywords.Places") != nullptr;
    }, [] { QTest::mouseClick(button(kForm, "smtActions.DONE"), Qt::LeftButton); });
    openNewTask(steps);

    EXPECT_TRUE(steps.skipped().isEmpty()) << steps.skipped().join(", ").toStdString()
                                           << steps.messages().join(" | ").toStdString();
    EXPECT_EQ(count("SELECT count(*) FROM KEYWORDS WHERE keySubject='Places' AND keyKeyword='Garden'"), 1);
}

// Two hundred keywords: the sheet is painted rows; a click on one far down
// the list is a tick that the save stores.
TEST_F(NewTaskWindow, AKeywordTickedFarDownALongListIsSaved) {
    exec("INSERT INTO PROJECTS (prjGUIDID, prjProject) VALUES ('AAAAAAAA-0000-0000-0000-000000000001', 'Home')");
    exec("WITH RECURSIVE n(i) AS (SELECT 0 UNION ALL SELECT i + 1 FROM n WHERE i < 199) "
         "INSERT INTO KEYWORDS SELECT printf('K%07d-0000-0000-0000-000000000000', i), 'Subject ' || (i / 50), "
         "printf('Keyword %03d', i) FROM n");
    const std::string far = "K0000187-0000-0000-0000-000000000000";
    StepRunner steps;
    whenOpen(steps, "tick a keyword", [&far] {
        QTest::keyClicks(description(), "Sort the photos");
        auto* sheet = window()->findChild<SheetWidget*>("smtKeywords");
        ASSERT_NE(sheet, nullptr);
        QListView* list = sheet->listView();
        ASSERT_NE(list, nullptr);
        EXPECT_LT(sheet->findChildren<QWidget*>().size(), 40);
        const QModelIndex row = static_cast<SheetModel*>(list->model())->indexOf(far);
        list->scrollTo(row);
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualRect(row).center());
    });
    steps.when("add", [] { return enabled(kForm, "smtActions.QV2"); },
               [] { QTest::mouseClick(button(kForm, "smtActions.QV2"), Qt::LeftButton, {}, QPoint(8, 8)); });
    steps.when("done", [this] { return count("SELECT count(*) FROM TASKS") == 1; },
               [] { QTest::mouseClick(button(kForm, "smtActions.DONE"), Qt::LeftButton); }, 200);
    openNewTask(steps);

    EXPECT_TRUE(steps.skipped().isEmpty()) << steps.skipped().join(", ").toStdString()
                                           << steps.messages().join(" | ").toStdString();
    EXPECT_EQ(text("SELECT group_concat(ktKEYGUID) FROM TaskKeywords"), far);
}

}  // namespace
}  // namespace qv
