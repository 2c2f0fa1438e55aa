#include "view/TaskFileMenu.h"

#include <QAction>
#include <QFileDialog>
#include <QMenu>
#include <QMessageBox>

#include "interop/Interop.h"
#include "kit/QtText.h"
#include "session/globals/SessionGlobals.h"
#include "view/HostStore.h"
#include "view/HostWindow.h"

namespace qv {

namespace {

QString withSuffix(QString path, const char* suffix) {
    if (!path.isEmpty() && !path.endsWith(QLatin1String(suffix), Qt::CaseInsensitive)) path += QLatin1String(suffix);
    return path;
}

}  // namespace

TaskFileMenu::TaskFileMenu(HostWindow& window, HostStore& store)
    : QObject(&window), window_(window), store_(store) {
    chooseFile = [this](FileKind kind) { return askFile(kind); };
    tell = [this](bool ok, const QString& text) {
        if (ok) QMessageBox::information(&window_, kProgramTitle, text);
        else QMessageBox::warning(&window_, kProgramTitle, text);
    };
}

void TaskFileMenu::addTo(QMenu* menu) {
    auto add = [&](const char* name, const char* text, QKeySequence keys, void (TaskFileMenu::*slot)()) {
        QAction* a = menu->addAction(qtr(text), this, slot);
        a->setObjectName(name);
        if (!keys.isEmpty()) a->setShortcut(keys);
        return a;
    };
    add("actExportTasks", QV_N("&Export Tasks..."), QKeySequence(Qt::CTRL | Qt::Key_E),
        &TaskFileMenu::exportTasks);
    add("actExportTask", QV_N("Export &Task..."), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_E),
        &TaskFileMenu::exportTask);
    add("actImportTasks", QV_N("&Import Tasks..."), QKeySequence(Qt::CTRL | Qt::Key_I),
        &TaskFileMenu::importTasks);
    add("actExportSpreadsheet", QV_N("Export to &Spreadsheet..."),
        QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_X), &TaskFileMenu::exportSpreadsheet);
}

QString TaskFileMenu::askFile(FileKind kind) const {
    const QString folder = QString::fromStdString(store_.folder());
    switch (kind) {
    case FileKind::CalendarToOpen:
        return QFileDialog::getOpenFileName(&window_, qtr("Import Tasks"), folder,
                                            qtr("Calendar files (*.ics)") + ";;" + qtr("All files (*)"));
    case FileKind::CalendarToSave:
        return withSuffix(QFileDialog::getSaveFileName(&window_, qtr("Export Tasks"), folder + "/tasks.ics",
                                                       qtr("Calendar files (*.ics)")),
                          ".ics");
    case FileKind::SpreadsheetToSave:
        return withSuffix(
            QFileDialog::getSaveFileName(&window_, qtr("Export to Spreadsheet"), folder + "/tasks.csv",
                                         qtr("Spreadsheet files (*.csv)")),
            ".csv");
    }
    return {};
}

// The files go through the session's store: the one of the host's folder.
void TaskFileMenu::prepareStore() const {
    if (g().AppPath != store_.folder()) {
        g().AppPath = store_.folder();
        g().ConnString.clear();
    }
}

// Asks for the file, runs the command on the host's store, tells the outcome.
void TaskFileMenu::withFile(FileKind kind, const std::function<InteropResult(const std::string&)>& command) {
    const QString path = chooseFile(kind);
    if (path.isEmpty()) return;
    prepareStore();
    const InteropResult r = command(path.toStdString());
    if (kind == FileKind::CalendarToOpen) window_.refresh();
    tell(r.ok, QString::fromStdString(r.message));
}

// The tasks the list shows: the Current List, a project's, or all.
void TaskFileMenu::exportTasks() {
    ExportScope scope = ExportScope::all();
    if (window_.currentListShown()) scope = ExportScope::current();
    else if (const std::string project = window_.chosenProject(); !project.empty()) scope = ExportScope::project(project);
    withFile(FileKind::CalendarToSave, [&](const std::string& path) { return Interop::exportCalendar(path, scope); });
}

void TaskFileMenu::exportTask() {
    const std::string task = window_.selectedTask();
    if (task.empty()) return tell(false, qtr("Choose a task in the list first."));
    withFile(FileKind::CalendarToSave,
             [&](const std::string& path) { return Interop::exportCalendar(path, ExportScope::task(task)); });
}

void TaskFileMenu::importTasks() {
    withFile(FileKind::CalendarToOpen, &Interop::importCalendar);
}

void TaskFileMenu::exportSpreadsheet() {
    withFile(FileKind::SpreadsheetToSave, &Interop::exportSpreadsheet);
}

}  // namespace qv
