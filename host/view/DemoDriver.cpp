#include "view/DemoDriver.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDateEdit>
#include <QDir>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QTextEdit>
#include <QTimer>

#include "kit/ToolCell.h"
#include "view/HostApp.h"
#include "view/HostSession.h"
#include "view/HostWindow.h"

namespace qv {

namespace {
const QString kNewTask = "frmTask3";
bool closed(const QString& form) { return !StepRunner::formWindow(form); }
// After a save, and the banner's wait, the close tool reads "D&one" again.
bool saved() {
    QWidget* w = StepRunner::formWindow(kNewTask);
    auto* done = w ? w->findChild<ToolCell*>("smtActions.DONE") : nullptr;
    auto* b = done ? qobject_cast<QAbstractButton*>(done->control()) : nullptr;
    return b && b->text() == "D&one";
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
    planFromCatalog();
    steps_.when("host after", [] { return closed(kNewTask); }, [this] { shoot(&app_.window(), "host-after", false); });
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
}

void DemoDriver::planSubDialogs() {
    // A fresh store has no project, and a task needs one: make it here.
    openAndShoot("smtProj.kNEWPROJECT", "frmAddProject", "add-project", [](QWidget* w) {
        for (const auto& [cell, text] : {std::pair{"smtProject.txName", "Quarterly Reports"},
                                         std::pair{"smtProject.txSummary", "Reports for the board"}})
            if (auto* c = w->findChild<ToolCell*>(cell))
                if (auto* edit = c->findChild<QLineEdit*>()) StepRunner::typeInto(edit, text);
        StepRunner::clickTool("frmAddProject", "smtAction.OK");
    });
    openAndShoot("smtKeywords.kNEWKEYWORD", "frmAddKeyword", "add-keyword");
    openAndShoot("smtCKActions.PICK", "frmCkPicker", "checklist-picker");
    openAndShoot("smtCKActions.NEW", "frmChecklistEditor", "checklist-editor");
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

void DemoDriver::shootWhenShown(const QString& form, const QString& name, bool sizes, int settleMs) {
    steps_.when(
        name, [form] { return StepRunner::formWindow(form) != nullptr; },
        [this, form, name, sizes] {
            if (QWidget* w = StepRunner::formWindow(form)) shoot(w, name, sizes);
        },
        settleMs);
}

void DemoDriver::openAndShoot(const QString& cell, const QString& form, const QString& name,
                              std::function<void(QWidget*)> use) {
    steps_.when("open " + name, [] { return StepRunner::formWindow(kNewTask) != nullptr; },
                [cell] { StepRunner::clickTool(kNewTask, cell); });
    steps_.when(name, [form] { return StepRunner::formWindow(form) != nullptr; },
                [this, form, name, use] {
                    if (QWidget* w = StepRunner::formWindow(form)) {
                        shoot(w, name, allSizes_);
                        if (use) use(w);
                    }
                },
                300);
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
