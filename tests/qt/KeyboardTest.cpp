// Keyboard first: every dialog opens with the focus where typing makes
// sense and F1 opens its help; the host's menus hold every command, each
// with a shortcut, its tool bar fits, and Enter opens a catalog item.
#include <QApplication>
#include <QListWidget>
#include <QLineEdit>
#include <QMessageBox>
#include <QRegularExpression>
#include <QScreen>
#include <QTextEdit>
#include <QMenu>
#include <QMenuBar>
#include <QTableView>
#include <QToolBar>
#include <QToolButton>
#include <functional>
#include <map>
#include <set>

#include "HostFixture.h"
#include "kit/ToolCell.h"
#include "view/AppointmentList.h"
#include "view/HostWindow.h"

namespace qv {
namespace {

const QString kNewTask = "frmTask3";
const QString kHelp = "frmPopHelp";

// The focused control, by its own name or that of the named control it is part of.
QString focusIn(const QString& form) {
    QWidget* w = StepRunner::formWindow(form);
    for (QWidget* focus = w ? w->focusWidget() : nullptr; focus; focus = focus->parentWidget())
        if (!focus->objectName().isEmpty()) return focus->objectName();
    return "(none)";
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
        QString title;  // the window's title after the program's
    };
    const Case cases[] = {
        {"smtProj.kNEWPROJECT", "frmAddProject", "smtProject.txName.edit", "Add Project"},
        {"smtKeywords.kNEWKEYWORD", "frmAddKeyword", "smtKeywords.KEYWORD.edit", "Add Keyword"},
        {"smtActions.PAGESETUP", "frmPageSetup", "smtPrinting(0).PRINTER", "Page Setup"},
        {"", kNewTask, "spellTask", "New Task"},
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
                seen << c.form + ": " + focusIn(c.form) + " in " +
                            StepRunner::formWindow(c.form)->windowTitle().section(" - ", -1);
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
        wanted << c.form + ": " + c.focus + " in " + c.title;
        every << c.form;
    }
    EXPECT_EQ(seen.join("\n").toStdString(), wanted.join("\n").toStdString());
    EXPECT_EQ(helped.join(" ").toStdString(), every.join(" ").toStdString());
}

// A stored task and its appointment: the Existing Task and the Task
// Appointment windows open on the description, within the screen, and F1
// is their help.
TEST_F(Keyboard, TaskAndAppointmentWindowsOpenOnTheDescriptionWithinTheScreen) {
    const char* task = "11111111-0000-0000-0000-000000000001";
    exec(std::string("INSERT INTO TASKS (tskGUIDID, tskDesc, tskStatus, tskImp, tskDifficulty, tskTimeNeeded, "
                     "tskTimeScheduled, tskCurrent, tskCustSortQV) VALUES ('") +
         task + "', 'Sweep the yard', 3, 1, 1, 60, 0, 1, 1)");
    exec(std::string("INSERT INTO TASKAPPTS (taGUIDID, taTaskGUIDID, taStartTime, taEndTime, taTaskDesc, taImp, "
                     "taDifficulty, taWasWorked, taDuration) VALUES ('22222222-0000-0000-0000-000000000001', '") +
         task + "', '2026-11-24T08:00:00.000', '2026-11-24T08:45:00.000', 'Sweep the yard', 1, 1, 0, 45)");
    HostWindow& w = host().window();
    w.refresh();
    w.selectTask(task);
    ASSERT_EQ(w.appointments().count(), 1);
    w.appointments().setCurrentRow(0);
    const std::pair<QString, std::function<void()>> cases[] = {
        {"frmExistingTask", [&w] { w.openTask(); }},
        {"frmTAS2", [&w] { w.workAppointment(); }},
    };
    for (const auto& [form, open] : cases) {
        SCOPED_TRACE(form.toStdString());
        StepRunner steps;
        QString focus;
        bool within = false, helped = false;
        steps.when("open", [f = form] { return shown(f); }, [&, f = form] {
            focus = focusIn(f);
            QWidget* win = StepRunner::formWindow(f);
            within = win->screen()->availableGeometry().contains(win->frameGeometry());
            press(f, Qt::Key_F1);
        }, 300);
        steps.when("help", [] { return shown(kHelp); }, [&helped] {
            helped = true;
            press(kHelp, Qt::Key_Escape);
        });
        steps.when("leave", [] { return !shown(kHelp); }, [f = form] { press(f, Qt::Key_Escape); }, 100);
        run(steps, open);
        EXPECT_TRUE(ranAll(steps));
        EXPECT_EQ(focus.toStdString(), "spellTask");
        EXPECT_TRUE(within);
        EXPECT_TRUE(helped);
    }
}

// Tab from the description goes round the whole New Task window and comes
// back: each option group is one stop, the tool bar is reached, the date box
// lets Tab go on, no scroll area is a stop; arrows choose inside a group.
TEST_F(Keyboard, TabGoesRoundNewTaskOnceAndArrowsMoveInsideAnOptionGroup) {
    StepRunner steps;
    QStringList stops;
    QString before, after;
    bool afterChecked = false;
    steps.when("tab round", [] { return shown(kNewTask); }, [&] {
        QWidget* win = StepRunner::formWindow(kNewTask);
        QWidget* start = win->focusWidget();
        for (int i = 0; i < 120; ++i) {
            QTest::keyClick(win->focusWidget(), Qt::Key_Tab);
            if (win->focusWidget() == start) break;
            stops << focusIn(kNewTask) + ":" + win->focusWidget()->metaObject()->className();
        }
        stops << "back:" + QString(win->focusWidget() == start ? "yes" : "no");
        // Down on the chosen importance chooses the next one.
        for (int i = 0; i < 120 && !focusIn(kNewTask).startsWith("smtImp."); ++i)
            QTest::keyClick(win->focusWidget(), Qt::Key_Tab);
        before = focusIn(kNewTask);
        QTest::keyClick(win->focusWidget(), Qt::Key_Down);
        after = focusIn(kNewTask);
        auto* radio = qobject_cast<QAbstractButton*>(win->focusWidget());
        afterChecked = radio && radio->isChecked();
        press(kNewTask, Qt::Key_Escape);
    }, kStartTimerSettleMs);
    steps.onMessageBox([](QMessageBox&) { return 0; });
    openNewTask(steps);
    EXPECT_TRUE(ranAll(steps));
    const std::string walk = stops.join("\n").toStdString();
    EXPECT_EQ(stops.back(), "back:yes") << walk;
    for (const char* group : {"smtImp.", "smtDiff.", "smtTimeNeeded."}) {
        int radios = 0;
        for (const QString& s : stops) radios += s.startsWith(group) && s.endsWith("QRadioButton") ? 1 : 0;
        EXPECT_EQ(radios, 1) << group << "\n" << walk;
    }
    EXPECT_EQ(stops.filter("QScrollArea").size(), 0) << walk;
    EXPECT_EQ(stops.filter(QRegularExpression("^smtActions\\.")).isEmpty(), false) << walk;
    EXPECT_EQ(stops.filter(QRegularExpression("^ctDeadline")).size(), 1) << walk;
    EXPECT_TRUE(before.startsWith("smtImp.IMP-")) << before.toStdString();
    EXPECT_TRUE(after.startsWith("smtImp.IMP-") && after != before) << after.toStdString();
    EXPECT_TRUE(afterChecked);
}

// A project added through its window rebuilds the project sheet: its new
// option keeps the sheet's place in the Tab order, before the description.
TEST_F(Keyboard, ASheetRebuiltWhileShownKeepsItsPlaceInTheTabOrder) {
    StepRunner steps;
    QStringList stops;
    steps.when("add project", [] { return shown(kNewTask); },
               [] { StepRunner::clickTool(kNewTask, "smtProj.kNEWPROJECT"); }, kStartTimerSettleMs);
    steps.when("type", [] { return shown("frmAddProject"); }, [] {
        QTest::keyClicks(cell("frmAddProject", "smtProject.txName")->findChild<QLineEdit*>(), "Garden");
        QTest::keyClicks(cell("frmAddProject", "smtProject.txSummary")->findChild<QLineEdit*>(), "Beds");
        StepRunner::clickTool("frmAddProject", "smtAction.OK");
    });
    steps.when("close", [this] { return count("SELECT count(*) FROM PROJECTS") == 1; },
               [] { StepRunner::clickTool("frmAddProject", "smtAction.CANCEL"); }, 100);
    steps.when("tab round", [] { return !shown("frmAddProject"); }, [&stops] {
        QWidget* win = StepRunner::formWindow(kNewTask);
        win->findChild<QTextEdit*>("spellTask")->setFocus();
        for (int i = 0; i < 120; ++i) {
            QTest::keyClick(win->focusWidget(), Qt::Key_Tab);
            stops << focusIn(kNewTask);
            if (stops.back() == "spellTask") break;
        }
        press(kNewTask, Qt::Key_Escape);
    }, 300);
    steps.onMessageBox([](QMessageBox&) { return 0; });
    openNewTask(steps);
    EXPECT_TRUE(ranAll(steps));
    const QString garden = "smtProj." + QString::fromStdString(text("SELECT prjGUIDID FROM PROJECTS"));
    ASSERT_GE(stops.size(), 3);
    EXPECT_EQ(stops.mid(stops.size() - 3).join(" "), garden + " smtProj.kNEWPROJECT spellTask") << stops.join(" ").toStdString();
}

TEST_F(Keyboard, TheMenusHoldEveryCommandWithAShortcutAndTheToolBarFits) {
    HostWindow& w = host().window();
    const std::map<QString, QStringList> menus{
        {"&File", {"actFolder", "actExportTasks", "actExportTask", "actImportTasks", "actExportSpreadsheet", "actQuit"}},
        {"&Task", {"actNewTask", "actOpenTask", "actFromCatalog", "actSaveToCatalog", "actDelete"}},
        {"&Appointment", {"actWorkAppointment", "actSchedule"}},
        {"&Help", {"actHelpIndex", "actTour"}},
    };
    // The keys people know, and "..." on the commands that ask for a file.
    const std::map<QString, QKeySequence> known{
        {"actNewTask", QKeySequence(QKeySequence::New)}, {"actExportTasks", QKeySequence("Ctrl+E")},
        {"actExportTask", QKeySequence("Ctrl+Shift+E")}, {"actImportTasks", QKeySequence("Ctrl+I")},
        {"actExportSpreadsheet", QKeySequence("Ctrl+Shift+X")}};
    std::set<QString> keys;
    for (QAction* top : w.menuBar()->actions()) {
        SCOPED_TRACE(top->text().toStdString());
        ASSERT_TRUE(menus.count(top->text()));
        QStringList names;
        for (QAction* a : top->menu()->actions()) {
            if (a->isSeparator()) continue;
            const QString name = a->objectName();
            names << name;
            EXPECT_FALSE(a->shortcut().isEmpty()) << name.toStdString();
            EXPECT_TRUE(keys.insert(a->shortcut().toString()).second) << "one key, one command";
            if (!known.count(name)) continue;
            EXPECT_EQ(a->shortcut(), known.at(name)) << name.toStdString();
            EXPECT_TRUE(name == "actNewTask" || a->text().endsWith("...")) << name.toStdString();
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
    exec("INSERT INTO TASKSCAT (tskGUIDID, tskDesc, tskStatus, tskImp, tskDifficulty, tskTimeNeeded, "
         "tskTimeScheduled, tskTimeSpent, tskCurrent, tskHasChecklist) VALUES ('C1', 'Water the lawn', 3, 1, 1, 60, "
         "0, 0, 0, 0)");
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
