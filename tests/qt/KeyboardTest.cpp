// Keyboard first: every dialog opens with the focus where typing makes
// sense and F1 opens its help; the host's menus hold every command, each
// with a shortcut, its tool bar fits, and Enter opens a catalog item.
#include <QApplication>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QTableView>
#include <QToolBar>
#include <QToolButton>
#include <map>
#include <set>

#include "HostFixture.h"
#include "view/HostWindow.h"

namespace qv {
namespace {

const QString kNewTask = "frmTask3";
const QString kHelp = "frmPopHelp";

QString focusIn(const QString& form) {
    QWidget* w = StepRunner::formWindow(form);
    QWidget* focus = w ? w->focusWidget() : nullptr;
    return focus ? focus->objectName() : QString("(none)");
}

void press(const QString& form, int key) {
    if (QWidget* w = StepRunner::formWindow(form)) QTest::keyClick(w->focusWidget() ? w->focusWidget() : w, Qt::Key(key));
}

class Keyboard : public HostFixture {};

// Each window New Task opens, and New Task itself: the focus at open, F1
// gives the help pop-up, Escape leaves it and then the window.
TEST_F(Keyboard, EveryDialogOpensWithTheFocusWhereTypingGoesAndF1IsItsHelp) {
    struct Case {
        const char* opener;  // a tool of New Task, "" for New Task itself
        QString form;
        QString focus;  // the focused control's object name
    };
    const Case cases[] = {
        {"smtProj.kNEWPROJECT", "frmAddProject", "smtProject.txName.edit"},
        {"smtKeywords.kNEWKEYWORD", "frmAddKeyword", "smtKeywords.KEYWORD.edit"},
        {"smtActions.PAGESETUP", "frmPageSetup", "smtPrinting(0).PRINTER.edit"},
        {"", kNewTask, "spellTask"},
    };
    QStringList seen, helped;
    StepRunner steps;
    steps.when("new task", [] { return shown(kNewTask); }, [] {}, kStartTimerSettleMs);
    for (const Case& c : cases) {
        if (*c.opener)
            steps.then(QString("open ") + c.form, [c] { StepRunner::clickTool(kNewTask, c.opener); });
        steps.when(
            "focus " + c.form, [c] { return shown(c.form); },
            [c, &seen] {
                seen << c.form + ": " + focusIn(c.form);
                press(c.form, Qt::Key_F1);
            },
            200);
        steps.when("help " + c.form, [] { return shown(kHelp); }, [c, &helped] {
            helped << c.form;
            press(kHelp, Qt::Key_Escape);
        });
        steps.when("leave " + c.form, [] { return !shown(kHelp); }, [c] { press(c.form, Qt::Key_Escape); }, 100);
        steps.when("left " + c.form, [c] { return !shown(c.form) || c.form == kNewTask; }, [] {});
    }
    openNewTask(steps);
    EXPECT_TRUE(ranAll(steps));
    QStringList wanted, every;
    for (const Case& c : cases) {
        wanted << c.form + ": " + c.focus;
        every << c.form;
    }
    EXPECT_EQ(seen, wanted);
    EXPECT_EQ(helped, every);
}

TEST_F(Keyboard, TheMenusHoldEveryCommandWithAShortcutAndTheToolBarFits) {
    HostWindow& w = host().window();
    const std::map<QString, QStringList> menus{
        {"&File", {"actFolder", "actQuit"}},
        {"&Task", {"actNewTask", "actOpenTask", "actFromCatalog", "actSaveToCatalog", "actDelete"}},
        {"&Appointment", {"actWorkAppointment", "actSchedule"}},
        {"&Help", {"actHelpIndex", "actTour"}},
    };
    std::set<QString> keys;
    for (QAction* top : w.menuBar()->actions()) {
        SCOPED_TRACE(top->text().toStdString());
        ASSERT_TRUE(menus.count(top->text()));
        QStringList names;
        for (QAction* a : top->menu()->actions()) {
            if (a->isSeparator()) continue;
            names << a->objectName();
            EXPECT_FALSE(a->shortcut().isEmpty()) << a->objectName().toStdString();
            EXPECT_TRUE(keys.insert(a->shortcut().toString()).second) << "one key, one command";
        }
        EXPECT_EQ(names, menus.at(top->text()));
    }
    EXPECT_EQ(w.menuBar()->actions().size(), 4);

    w.show();
    QApplication::processEvents();
    auto* bar = w.findChild<QToolBar*>("commands");
    auto* more = bar->findChild<QToolButton*>("qt_toolbar_ext_button");
    EXPECT_TRUE(more == nullptr || !more->isVisible()) << "no >> at the default size";
}

// Enter on a catalog item makes a task of it, as a double click does.
TEST_F(Keyboard, EnterOnACatalogItemOpensItsNewTask) {
    exec("INSERT INTO TASKSCAT (tskGUIDID, tskDesc) VALUES ('C1', 'Water the lawn')");
    HostWindow& w = host().window();
    w.refresh();
    auto* catalog = w.findChild<QListWidget*>("lstCatalog");
    ASSERT_EQ(catalog->count(), 1);
    catalog->setCurrentRow(0);
    StepRunner steps;
    bool opened = false;
    steps.when("opened", [] { return shown(kNewTask); }, [&opened] {
        opened = true;
        press(kNewTask, Qt::Key_Escape);
    }, kStartTimerSettleMs);
    run(steps, [catalog] { QTest::keyClick(catalog, Qt::Key_Return); });
    EXPECT_TRUE(opened);
}

}  // namespace
}  // namespace qv
