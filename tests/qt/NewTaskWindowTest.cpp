// The New Task dialog driven through its real window, from the host.
#include <QApplication>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QRadioButton>
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
    static bool enabled(const QString& form, const QString& name) {
        QAbstractButton* b = button(form, name);
        return b && b->isEnabled() && b->isVisible();
    }
    // Waits for the window with the start timer's defaults in.
    static void whenOpen(StepRunner& steps, const QString& name, StepRunner::Action act) {
        steps.when(name, [] { return window() != nullptr; }, std::move(act), kStartTimerSettleMs);
    }
};

// A typed task, with a keyword ticked far down a long list (painted rows, a
// click on one is a tick), lands in the store and in the host's list.
TEST_F(NewTaskWindow, TypedTaskLandsInTheStoreAndTheHostList) {
    // A task needs a project; the first in the list is the default.
    exec("INSERT INTO PROJECTS (prjGUIDID, prjProject) VALUES ('AAAAAAAA-0000-0000-0000-000000000001', 'Home')");
    exec("WITH RECURSIVE n(i) AS (SELECT 0 UNION ALL SELECT i + 1 FROM n WHERE i < 199) "
         "INSERT INTO KEYWORDS SELECT printf('K%07d-0000-0000-0000-000000000000', i), 'Subject ' || (i / 50), "
         "printf('Keyword %03d', i) FROM n");
    const std::string far = "K0000187-0000-0000-0000-000000000000";
    StepRunner steps;
    whenOpen(steps, "type", [&far] {
        QTest::keyClicks(description(), "Renew the passport");
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
    // After the save (and its banner) the close tool reads "D&one" again.
    steps.when("done", [this] { return count("SELECT count(*) FROM TASKS") == 1 && button(kForm, "smtActions.DONE")->text() == "D&one"; },
               [] { QTest::mouseClick(button(kForm, "smtActions.DONE"), Qt::LeftButton); });
    openNewTask(steps);

    EXPECT_TRUE(ranAll(steps));
    EXPECT_FALSE(shown(kForm));
    EXPECT_EQ(count("SELECT count(*) FROM TASKS WHERE tskDesc='Renew the passport'"), 1);
    EXPECT_EQ(text("SELECT group_concat(ktKEYGUID) FROM TaskKeywords"), far);
    // The host's list followed the NewTask event.
    const TaskTableModel& list = host().window().tasks();
    ASSERT_EQ(list.rowCount(), 1);
    EXPECT_EQ(list.data(list.index(0, TaskTableModel::Desc)).toString(), "Renew the passport");
    EXPECT_FALSE(list.data(list.index(0, TaskTableModel::Status)).toString().isEmpty());
    // Every event of the session is in the host's log, in order.
    EXPECT_TRUE(log().contains("5 NewTask")) << log().toStdString();
    EXPECT_LT(log().indexOf("5 NewTask"), log().lastIndexOf("7 DoCloseTaskForm"));
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

    EXPECT_TRUE(ranAll(steps));
    ASSERT_EQ(steps.messages().size(), 2);
    EXPECT_EQ(steps.messages()[0], "Cancel creating the current task?");
    EXPECT_EQ(count("SELECT count(*) FROM TASKS"), 0);
}

// A new project or keyword, typed in the window New Task opens for it, is
// stored and comes back in the New Task's list.
TEST_F(NewTaskWindow, ProjectAndKeywordAddedThroughTheirWindowsComeBackToTheList) {
    struct Case {
        const char *tool, *form, *fields[2][2], *save, *close, *table;
        std::function<bool()> listed;
        const char* stored;
    };
    const auto keyIn = [this](const char* sql) { return QString::fromStdString(text(sql)); };
    const Case cases[] = {
        {"smtKeywords.kNEWKEYWORD", "frmAddKeyword",
         {{"smtKeywords.CATEGORY", "Places"}, {"smtKeywords.KEYWORD", "Garden"}},
         "smtAction.ADD", "smtAction.OK", "KEYWORDS",
         [&] {  // a tick box, under its subject
             ToolCell* box = cell(kForm, "smtKeywords." + keyIn("SELECT keyGUIDID FROM KEYWORDS"));
             return box && box->kind() == ToolCell::Kind::Check && cell(kForm, "smtKeywords.Places");
         },
         "SELECT count(*) FROM KEYWORDS WHERE keySubject='Places' AND keyKeyword='Garden'"},
        {"smtProj.kNEWPROJECT", "frmAddProject",
         {{"smtProject.txName", "Garden & Shed"}, {"smtProject.txSummary", "Spring work"}},
         "smtAction.OK", "smtAction.CANCEL", "PROJECTS",
         [&] {  // chosen
             ToolCell* option = cell(kForm, "smtProj." + keyIn("SELECT prjGUIDID FROM PROJECTS"));
             auto* radio = option ? qobject_cast<QRadioButton*>(option->control()) : nullptr;
             return radio && radio->isChecked();
         },
         "SELECT count(*) FROM PROJECTS WHERE prjProject='Garden & Shed'"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.form);
        StepRunner steps;
        whenOpen(steps, "open", [&c] { QTest::mouseClick(button(kForm, c.tool), Qt::LeftButton); });
        steps.when("type", [&c] { return shown(c.form); }, [&c] {
            for (const auto& [tool, typed] : c.fields)
                QTest::keyClicks(cell(c.form, tool)->findChild<QLineEdit*>(), typed);
            QTest::mouseClick(button(c.form, c.save), Qt::LeftButton);
        });
        steps.when("close", [&] { return count(std::string("SELECT count(*) FROM ") + c.table) == 1; },
                   [&c] { QTest::mouseClick(button(c.form, c.close), Qt::LeftButton); }, 100);
        steps.when("listed", [&c] { return !shown(c.form) && c.listed(); },
                   [] { QTest::mouseClick(button(kForm, "smtActions.DONE"), Qt::LeftButton); });
        openNewTask(steps);

        EXPECT_TRUE(ranAll(steps));
        EXPECT_EQ(count(c.stored), 1);
    }
}

}  // namespace
}  // namespace qv
