#include "view/DemoDriver.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDateEdit>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QListWidget>
#include <QAction>
#include <QMessageBox>
#include <QTabBar>
#include <QTableView>
#include <QPainter>
#include <QPixmap>
#include <QTextEdit>
#include <QTimer>

#include "installer/StoreFile.h"
#include "kit/QtText.h"
#include "kit/TabStripView.h"
#include "kit/ToolCell.h"
#include "view/AppointmentList.h"
#include "view/HostApp.h"
#include "view/HostRows.h"
#include "view/HostSession.h"
#include "view/HostWindow.h"
#include "view/TaskTableModel.h"

namespace qv {

namespace {
const QString kNewTask = "frmTask3";
const QString kAppointment = "frmTAS2";
const QString kHelp = "frmPopHelp";
const QString kExistingTask = "frmExistingTask";
bool closed(const QString& form) { return !StepRunner::formWindow(form); }
// After a save, and the banner's wait, the close tool reads "D&one" again.
bool saved() {
    QWidget* w = StepRunner::formWindow(kNewTask);
    auto* done = w ? w->findChild<ToolCell*>("smtActions.DONE") : nullptr;
    auto* b = done ? qobject_cast<QAbstractButton*>(done->control()) : nullptr;
    return b && b->text() == qtr("D&one");
}
// Chooses an entry of a tool-bar menu of the New Task window ("PRINT").
void chooseMenuEntry(const QString& key) {
    if (QWidget* w = StepRunner::formWindow(kNewTask))
        if (auto* action = w->findChild<QAction*>(key)) action->trigger();
}
QWidget* preview() {
    QWidget* w = QApplication::activeModalWidget();
    return w && w->objectName() == "printPreview" ? w : nullptr;
}
}  // namespace

DemoDriver::DemoDriver(HostApp& app, QString shotsDir, bool allSizes)
    : app_(app), dir_(std::move(shotsDir)), allSizes_(allSizes) {
    steps_.onMessageBox([this](QMessageBox& box) {
        saveGrab(&box, QStringLiteral("message-%1").arg(++messages_));
        return 0;
    });
    connect(&app_.session(), &HostSession::logged, this, [this](const QString& line) {
        qInfo("event: %s", qPrintable(line));
        // A fault ended the session (a store that can't be used): the steps
        // left would only wait for windows that never come.
        QTimer::singleShot(0, this, [this] {
            if (app_.session().ended()) steps_.abandon("the component's session ended on a fault");
        });
    });
    steps_.then("host", [this] { shoot(&app_.window(), "host", allSizes_); });
    planNewTask();
    planSubDialogs();
    planPrinting();
    planFiling();
    planFromCatalog();
    planAppointment();
    steps_.when("host after", [] { return closed(kNewTask) && closed(kAppointment); },
                [this] { shoot(&app_.window(), "host-after", false); });
    planExistingTask();
    planHostHelp();
    steps_.onFinished([this] {
        StepRunner::closeAll();
        const int code = app_.session().ended() ? 1 : 0;
        QTimer::singleShot(0, qApp, [code] { QApplication::exit(code); });
    });
}

void DemoDriver::planNewTask() {
    steps_.then("open New Task", [this] { app_.window().newTask(); });
    // The start timer puts the defaults in after half a second.
    shootWhenShown(kNewTask, "new-task-empty", allSizes_, 900);
    steps_.when("fill New Task", [] { return StepRunner::formWindow(kNewTask) != nullptr; }, [] {
        QWidget* w = StepRunner::formWindow(kNewTask);
        if (auto* desc = w->findChild<QTextEdit*>("spellTask")) StepRunner::typeInto(desc, "Write the quarterly report");
        if (auto* date = w->findChild<QDateEdit*>("ctDeadline")) date->setDate(QDate::currentDate().addDays(-10));
        if (auto* cell = w->findChild<ToolCell*>("smtOther.DEADTIME"))
            if (auto* edit = cell->findChild<QLineEdit*>()) StepRunner::typeInto(edit, "17:00");
    });
    shootWhenShown(kNewTask, "new-task-filled", allSizes_);
    planHelp(kNewTask, "smtActions.HELP", "help-new-task", true);
}

// Presses a dialog's help tool and saves the help window over the dialog;
// with printing, also the print preview of the page and a print (a PDF
// where no printer is installed).
void DemoDriver::planHelp(const QString& form, const QString& helpCell, const QString& name, bool printing) {
    steps_.when("help of " + name, [form] { return StepRunner::formWindow(form) != nullptr; },
                [form, helpCell] { StepRunner::clickTool(form, helpCell); });
    steps_.when(name, [] { return StepRunner::formWindow(kHelp) != nullptr; },
                [this, form, name] { shootOver(StepRunner::formWindow(kHelp), StepRunner::formWindow(form), name); }, 400);
    if (printing) {
        steps_.then("preview " + name, [] { StepRunner::clickTool(kHelp, "smtAction.PRINTPREVIEW"); });
        steps_.when("preview of " + name, [] { return previewWindow() != nullptr; },
                    [this, name] {
                        QWidget* w = previewWindow();
                        shoot(w, name + "-preview", false);
                        w->close();
                    },
                    600);
        steps_.when("print " + name, [] { return previewWindow() == nullptr; },
                    [] { StepRunner::clickTool(kHelp, "smtAction.PRINT"); });
    }
    steps_.then("close " + name, [] { StepRunner::clickTool(kHelp, "smtAction.CLOSE"); });
    steps_.when(name + " closed", [] { return closed(kHelp); }, [] {}, 100);
}

QWidget* DemoDriver::previewWindow() {
    for (QWidget* w : QApplication::topLevelWidgets())
        if (w->objectName() == "printPreview" && w->isVisible()) return w;
    return nullptr;
}

// The help window drawn where it stands over the windows beneath it (the
// host, the New Task, the dialog that asked), in one picture.
void DemoDriver::shootOver(QWidget* top, QWidget* under, const QString& name) {
    if (!top) return;
    QList<QWidget*> stack;
    for (QWidget* w : {static_cast<QWidget*>(&app_.window()), StepRunner::formWindow(kNewTask), under, top})
        if (w && w->isVisible() && !stack.contains(w)) stack << w;
    QApplication::processEvents();
    QRect all;
    for (QWidget* w : stack) all = all.united(w->geometry());
    QPixmap picture(all.size());
    picture.fill(QColor(96, 96, 96));
    QPainter p(&picture);
    for (QWidget* w : stack) p.drawPixmap(w->geometry().topLeft() - all.topLeft(), w->grab());
    p.end();
    const QString path = QDir(dir_).filePath(name + ".png");
    if (picture.save(path)) shots_ << path;
}

void DemoDriver::planSubDialogs() {
    // A fresh store has no project, and a task needs one: make it here.
    openAndShoot("smtProj.kNEWPROJECT", "frmAddProject", "add-project", [](QWidget* w) {
        for (const auto& [cell, text] : {std::pair{"smtProject.txName", "Quarterly Reports"},
                                         std::pair{"smtProject.txSummary", "Reports for the board"}})
            if (auto* c = w->findChild<ToolCell*>(cell))
                if (auto* edit = c->findChild<QLineEdit*>()) StepRunner::typeInto(edit, text);
        StepRunner::clickTool("frmAddProject", "smtAction.OK");
    }, "smtAction.HELP");
    openAndShoot("smtKeywords.kNEWKEYWORD", "frmAddKeyword", "add-keyword", {}, "smtAction.HELP");
    openAndShoot("smtCKActions.PICK", "frmCkPicker", "checklist-picker");
    openAndShoot("smtCKActions.NEW", "frmChecklistEditor", "checklist-editor");
}

// Page Setup, then a preview and a print of the report (a PDF where no
// printer is installed); the questions are answered Yes.
void DemoDriver::planPrinting() {
    steps_.when("open page setup", [] { return StepRunner::formWindow(kNewTask) != nullptr; },
                [] { QTimer::singleShot(0, [] { chooseMenuEntry("PAGESETUP"); }); });
    shootWhenShown("frmPageSetup", "page-setup", allSizes_);
    planHelp("frmPageSetup", "smtActions.HELP", "help-page-setup", false);
    steps_.then("save page setup", [] { StepRunner::clickTool("frmPageSetup", "smtActions.OK"); });
    steps_.when("open the preview", [] { return closed("frmPageSetup"); },
                [] { QTimer::singleShot(0, [] { chooseMenuEntry("PRINTPREVIEW"); }); });
    steps_.when("print-preview", [] { return preview() != nullptr; },
                [this] {
                    QWidget* w = preview();
                    w->resize(1000, 760);
                    shoot(w, "print-preview", false);
                    w->close();
                },
                800);
    steps_.when("print", [] { return !preview() && StepRunner::formWindow(kNewTask) != nullptr; },
                [] { QTimer::singleShot(0, [] { chooseMenuEntry("PRINT"); }); });
    steps_.when("printed", [this] { return QFile::exists(QString::fromStdString(app_.folder()) + "/Quorvel Reports/NewTask.pdf"); },
                [] {});
}

void DemoDriver::planFiling() {
    shootWhenShown(kNewTask, "new-task-before-filing", false, 100);
    steps_.then("file in the Task Catalog", [] { StepRunner::clickTool(kNewTask, "smtActions.TC"); });
    steps_.when("close New Task", saved, [] { StepRunner::clickTool(kNewTask, "smtActions.DONE"); });
}

void DemoDriver::planFromCatalog() {
    steps_.when("create from the catalog item", [] { return closed(kNewTask); }, [this] {
        auto* list = app_.window().findChild<QListWidget*>("lstCatalog");
        if (list && list->count() > 0) list->setCurrentRow(0);
        app_.window().taskFromCatalog();
    });
    shootWhenShown(kNewTask, "new-task-from-catalog", allSizes_, 900);
    steps_.then("add the task", [] { StepRunner::clickTool(kNewTask, "smtActions.QV2"); });
    shootWhenShown(kNewTask, "new-task-added", false, 200);
    steps_.when("close New Task again", saved, [] { StepRunner::clickTool(kNewTask, "smtActions.DONE"); });
}

void DemoDriver::planAppointment() {
    steps_.when("schedule an appointment", [] { return closed(kNewTask); }, [this] {
        HostWindow& w = app_.window();
        auto* table = w.findChild<QTableView*>("tblTasks");
        if (table && table->model()->rowCount() > 0) table->setCurrentIndex(table->model()->index(0, 0));
        w.scheduleAppointment();
    });
    // The schedule's write pumps events: the next step waits for its slot in the list.
    steps_.when("work the appointment", [this] { return !app_.window().appointments().chosen().empty(); },
                [this] { app_.window().workAppointment(); });
    shootWhenShown(kAppointment, "appointment-fresh", allSizes_);
    steps_.then("time the work", [] {
        StepRunner::clickTool(kAppointment, "smtTimes.TIMER");
        QWidget* w = StepRunner::formWindow(kAppointment);
        if (auto* cell = w ? w->findChild<ToolCell*>("smtTimes.TIMESPENT") : nullptr)
            if (auto* edit = cell->findChild<QLineEdit*>()) {
                edit->setFocus();
                edit->selectAll();
                StepRunner::typeInto(edit, "0:40");
                if (auto* notes = w->findChild<QTextEdit*>("spellTask")) notes->setFocus();
            }
    });
    shootWhenShown(kAppointment, "appointment-worked", allSizes_, 1200);
    steps_.then("mark the task done", [] {
        QWidget* w = StepRunner::formWindow(kAppointment);
        if (auto* cell = w ? w->findChild<ToolCell*>("smtReady.DONE") : nullptr)
            if (auto* box = cell->findChild<QAbstractButton*>()) box->click();
        if (auto* tabs = w ? w->findChild<QTabBar*>("Tabs1.bar") : nullptr) tabs->setCurrentIndex(2);
    });
    shootWhenShown(kAppointment, "appointment-completed", allSizes_);
    steps_.then("update the appointment", [] { StepRunner::clickTool(kAppointment, "smtActions.SAVE"); });
    steps_.when("appointment closed", [] { return closed(kAppointment); }, [] {});
}

// The host's own help commands: the index, then the tour with its tool.
void DemoDriver::planHostHelp() {
    steps_.then("open the help index", [this] { app_.window().openHelp(5000); });
    steps_.when("help-index", [] { return StepRunner::formWindow(kHelp) != nullptr; },
                [this] { shootOver(StepRunner::formWindow(kHelp), &app_.window(), "help-index"); }, 400);
    steps_.then("close the help index", [] { StepRunner::clickTool(kHelp, "smtAction.CLOSE"); });
    steps_.when("open the tour", [] { return closed(kHelp); }, [this] { app_.window().openHelp(7000); }, 100);
    steps_.when("help-tour", [] { return StepRunner::formWindow(kHelp) != nullptr; },
                [this] { shootOver(StepRunner::formWindow(kHelp), &app_.window(), "help-tour"); }, 400);
    steps_.then("close the tour", [] { StepRunner::clickTool(kHelp, "smtAction.CLOSE"); });
    steps_.when("tour closed", [] { return closed(kHelp); }, [] {}, 100);
}

void DemoDriver::planExistingTask() {
    steps_.then("open the task", [this] {
        auto* list = app_.window().findChild<QTableView*>("tblTasks");
        const TaskRow* row = app_.window().tasks().rowAt(0);
        if (!list || !row) return;
        scheduleTwenty(row->guid);
        list->setCurrentIndex(list->model()->index(0, 0));
        app_.window().openTask();
    });
    shootWhenShown(kExistingTask, "existing-task", allSizes_, 400);
    steps_.then("schedule tab", [] {
        if (QWidget* w = StepRunner::formWindow(kExistingTask))
            if (auto* tabs = w->findChild<TabStripView*>("Tabs1")) tabs->bar()->setCurrentIndex(1);
    });
    shootWhenShown(kExistingTask, "existing-task-schedule", allSizes_, 300);
    steps_.then("close the task", [] { StepRunner::clickTool(kExistingTask, "smtActions.DONE"); });
    steps_.when("task closed", [] { return closed(kExistingTask); }, [] {});
}

void DemoDriver::scheduleTwenty(const std::string& taskKey) const {
    HostRows store(storeLocationOf(app_.folder()));
    store.runTogether({"UPDATE TASKS SET tskHasSchedule = 1 WHERE tskGUIDID = ?"}, taskKey);
    const QDateTime first = QDateTime(QDate::currentDate().addDays(-14), QTime(9, 0));
    const auto iso = [](const QDateTime& t) { return t.toString("yyyy-MM-ddTHH:mm:ss.zzz").toStdString(); };
    for (int i = 0; i < 20; ++i) {
        const QDateTime start = first.addDays(i).addSecs((i % 3) * 3600);
        const QDateTime end = start.addSecs(3600 + (i % 4) * 1800);
        const bool worked = i < 12;
        // An empty time worked stands for none.
        (void)store.select(
            "INSERT INTO TASKAPPTS (taGUIDID, taTaskGUIDID, taStartTime, taEndTime, taWasWorked, taTimeWorked, "
            "taImp, taDifficulty) VALUES (?, ?, ?, ?, ?, NULLIF(?, ''), 1, 1)",
            {QStringLiteral("DEMO%1-0000-0000-0000-000000000000").arg(i, 4, 10, QChar('0')).toStdString(), taskKey,
             iso(start), iso(end), worked ? "1" : "0", worked ? std::to_string(60 + (i % 4) * 30) : std::string()});
    }
}

void DemoDriver::shootWhenShown(const QString& form, const QString& name, bool sizes, int settleMs) {
    steps_.when(
        name, [form] { return StepRunner::formWindow(form) != nullptr; },
        [this, form, name, sizes] {
            if (QWidget* w = StepRunner::formWindow(form)) shoot(w, name, sizes);
        },
        settleMs);
}

void DemoDriver::openAndShoot(const QString& cell, const QString& form, const QString& name,
                              std::function<void(QWidget*)> use, const QString& helpCell) {
    steps_.when("open " + name, [] { return StepRunner::formWindow(kNewTask) != nullptr; },
                [cell] { StepRunner::clickTool(kNewTask, cell); });
    steps_.when(name, [form] { return StepRunner::formWindow(form) != nullptr; },
                [this, form, name] {
                    if (QWidget* w = StepRunner::formWindow(form)) shoot(w, name, allSizes_);
                },
                300);
    if (!helpCell.isEmpty()) planHelp(form, helpCell, "help-" + name, false);
    if (use)
        steps_.when("use " + name, [form] { return StepRunner::formWindow(form) != nullptr; }, [form, use] {
            if (QWidget* w = StepRunner::formWindow(form)) use(w);
        });
    steps_.then("close " + name, [form] {
        if (QWidget* w = StepRunner::formWindow(form)) w->close();
    });
    steps_.when(name + " closed", [form] { return closed(form); }, [] {});
}

int DemoDriver::run() {
    QDir().mkpath(dir_);
    app_.window().show();
    steps_.start();
    return QApplication::exec();
}

void DemoDriver::saveGrab(QWidget* w, const QString& name) {
    const QString path = QDir(dir_).filePath(name + ".png");
    if (w->grab().save(path)) shots_ << path;
}

void DemoDriver::shoot(QWidget* w, const QString& name, bool sizes) {
    QApplication::processEvents();
    saveGrab(w, name);
    if (!sizes) return;
    const QSize opened = w->size();
    const QSize smallest = w->minimumSize().isEmpty() ? w->minimumSizeHint() : w->minimumSize();
    for (const auto& [suffix, size] : {std::pair{QString("-min"), smallest}, std::pair{QString("-large"), opened * 1.3}}) {
        w->resize(size);
        QApplication::processEvents();
        saveGrab(w, name + suffix);
    }
    w->resize(opened);
    QApplication::processEvents();
}

}  // namespace qv
