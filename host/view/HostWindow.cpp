#include "view/HostWindow.h"

#include <exception>

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QDockWidget>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QTabWidget>
#include <QTableView>
#include <QTime>
#include <QToolBar>
#include <QVBoxLayout>

#include "session/globals/SessionGlobals.h"
#include "view/HostSession.h"
#include "view/HostStore.h"
#include "view/TaskTableModel.h"

namespace qv {

HostWindow::HostWindow(HostStore& store, HostSession& session, QWidget* parent)
    : QMainWindow(parent), store_(store), session_(session), tasks_(new TaskTableModel(this)) {
    setObjectName("hostWindow");
    setWindowTitle(QStringLiteral("%1 - Task Manager").arg(kProgramTitle));
    buildActions();
    auto* tabs = new QTabWidget(this);
    tabs->setObjectName("tabs");
    tabs->addTab(buildTaskPage(), "Tasks");
    tabs->addTab(buildCatalogPage(), "Task Catalog");
    setCentralWidget(tabs);
    buildLog();
    connect(&session_, &HostSession::listsChanged, this, &HostWindow::refresh);
    connect(&session_, &HostSession::logged, this, &HostWindow::log);
    resize(980, 620);
    refresh();
}

void HostWindow::buildActions() {
    QToolBar* bar = addToolBar("Commands");
    bar->setObjectName("commands");
    bar->setToolButtonStyle(Qt::ToolButtonTextOnly);
    auto add = [&](const char* name, const QString& text, bool enabled) {
        QAction* a = bar->addAction(text);
        a->setObjectName(name);
        a->setEnabled(enabled);
        return a;
    };
    newTask_ = add("actNewTask", "&New Task", true);
    newTask_->setShortcut(QKeySequence::New);
    connect(newTask_, &QAction::triggered, this, &HostWindow::newTask);
    fromCatalog_ = add("actFromCatalog", "Create Task from &Catalog Item", false);
    connect(fromCatalog_, &QAction::triggered, this, &HostWindow::taskFromCatalog);
    bar->addSeparator();
    openTask_ = add("actOpenTask", "&Open Task", false);
    connect(openTask_, &QAction::triggered, this, &HostWindow::openTask);
    // Commands of the other dialogs: present, not yet offered.
    add("actWorkAppointment", "&Work Appointment", false);
    saveToCatalog_ = add("actSaveToCatalog", "&Save to Catalog", false);
    connect(saveToCatalog_, &QAction::triggered, this, &HostWindow::saveToCatalog);
    delete_ = new QAction("&Delete Task", this);
    delete_->setObjectName("actDelete");
    delete_->setShortcut(QKeySequence::Delete);
    delete_->setEnabled(false);
    connect(delete_, &QAction::triggered, this, &HostWindow::deleteTask);
    buildMenus();
}

void HostWindow::buildMenus() {
    QMenu* tasks = menuBar()->addMenu("&Task");
    tasks->addAction(newTask_);
    tasks->addAction(openTask_);
    tasks->addAction(saveToCatalog_);
    tasks->addAction(fromCatalog_);
    tasks->addSeparator();
    tasks->addAction(delete_);
    tasks->addSeparator();
    QAction* quit = tasks->addAction("&Quit", this, &QWidget::close);
    quit->setObjectName("actQuit");
    quit->setShortcut(QKeySequence::Quit);
    QMenu* help = menuBar()->addMenu("&Help");
    QAction* about = help->addAction("&Help", this, [this] {
        QMessageBox::information(this, windowTitle(),
                                 "Open a task with Enter or a double click; Ctrl+N makes a new one; Delete removes "
                                 "the selected task with its appointments and keyword links.");
    });
    about->setObjectName("actHelp");
    about->setShortcut(QKeySequence::HelpContents);
}

QWidget* HostWindow::buildTaskPage() {
    auto* page = new QWidget(this);
    auto* column = new QVBoxLayout(page);
    auto* filters = new QHBoxLayout;
    project_ = new QComboBox(page);
    project_->setObjectName("cboProject");
    project_->setMinimumContentsLength(24);
    auto* projectLabel = new QLabel("&Project:", page);
    projectLabel->setBuddy(project_);
    currentOnly_ = new QCheckBox("Current &List", page);
    currentOnly_->setObjectName("chkCurrent");
    filters->addWidget(projectLabel);
    filters->addWidget(project_);
    filters->addWidget(currentOnly_);
    filters->addStretch(1);
    column->addLayout(filters);
    table_ = new QTableView(page);
    table_->setObjectName("tblTasks");
    table_->setModel(tasks_);
    table_->setSelectionBehavior(QAbstractItemView::SelectRows);
    table_->setAlternatingRowColors(true);
    table_->verticalHeader()->hide();
    table_->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
    table_->horizontalHeader()->setSectionResizeMode(TaskTableModel::Desc, QHeaderView::Stretch);
    // Widths from the text they hold, not from 100,000 rows.
    const auto& fm = fontMetrics();
    table_->setColumnWidth(TaskTableModel::Project, fm.horizontalAdvance(QStringLiteral("Quarterly Reports 2026")));
    table_->setColumnWidth(TaskTableModel::Deadline, fm.horizontalAdvance(QStringLiteral("0000-00-00 00:00:00")) + 12);
    column->addWidget(table_, 1);
    // Enter or a double click opens the task.
    connect(table_, &QAbstractItemView::activated, this, &HostWindow::openTask);
    connect(table_->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &HostWindow::taskSelectionChanged);
    connect(project_, &QComboBox::currentIndexChanged, this, &HostWindow::refresh);
    connect(currentOnly_, &QCheckBox::toggled, this, &HostWindow::refresh);
    return page;
}

QWidget* HostWindow::buildCatalogPage() {
    catalog_ = new QListWidget(this);
    catalog_->setObjectName("lstCatalog");
    connect(catalog_, &QListWidget::currentRowChanged, this,
            [this](int row) { fromCatalog_->setEnabled(row >= 0); });
    connect(catalog_, &QListWidget::itemDoubleClicked, this, &HostWindow::taskFromCatalog);
    return catalog_;
}

void HostWindow::buildLog() {
    auto* dock = new QDockWidget("Component Events", this);
    dock->setObjectName("eventDock");
    log_ = new QPlainTextEdit(dock);
    log_->setObjectName("txtLog");
    log_->setReadOnly(true);
    log_->setMaximumBlockCount(2000);
    dock->setWidget(log_);
    addDockWidget(Qt::BottomDockWidgetArea, dock);
}

std::string HostWindow::chosenProject() const { return project_->currentData().toString().toStdString(); }

void HostWindow::refreshProjects() {
    const QString chosen = project_->currentData().toString();
    QSignalBlocker block(project_);
    project_->clear();
    project_->addItem("(All projects)", QString());
    for (const auto& p : store_.projects())
        project_->addItem(QString::fromStdString(p.name), QString::fromStdString(p.key));
    project_->setCurrentIndex(std::max(0, project_->findData(chosen)));
}

void HostWindow::refresh() {
    try {
        refreshProjects();
        QStringList words;
        for (const auto& w : store_.statusList()) words << QString::fromStdString(w);
        const std::string selected = selectedTask();
        tasks_->setRows(store_.tasks(currentOnly_->isChecked(), chosenProject()), words);
        selectTask(selected);
        taskSelectionChanged();
        const QString chosen = catalog_->currentItem() ? catalog_->currentItem()->data(Qt::UserRole).toString() : "";
        catalog_->clear();
        for (const auto& c : store_.catalog()) {
            auto* item = new QListWidgetItem(QString::fromStdString(c.name), catalog_);
            item->setData(Qt::UserRole, QString::fromStdString(c.key));
            if (item->data(Qt::UserRole).toString() == chosen) catalog_->setCurrentItem(item);
        }
        fromCatalog_->setEnabled(catalog_->currentItem() != nullptr);
    } catch (const std::exception& e) {
        log(QStringLiteral("Could not read the store: %1").arg(e.what()));
    }
}

void HostWindow::newTask() { session_.newTask(chosenProject()); }

void HostWindow::taskFromCatalog() {
    if (QListWidgetItem* item = catalog_->currentItem())
        session_.taskFromCatalog(item->data(Qt::UserRole).toString().toStdString());
}

std::string HostWindow::selectedTask() const {
    const QModelIndex current = table_->currentIndex();
    return current.isValid() ? tasks_->data(current, Qt::UserRole).toString().toStdString() : std::string();
}

void HostWindow::selectTask(const std::string& key) {
    for (int row = 0; row < tasks_->rowCount(); ++row)
        if (tasks_->rowAt(row)->guid == key) return table_->setCurrentIndex(tasks_->index(row, 0));
}

void HostWindow::taskSelectionChanged() {
    const bool any = !selectedTask().empty();
    for (QAction* a : {openTask_, saveToCatalog_, delete_}) a->setEnabled(any);
}

void HostWindow::openTask() {
    const std::string key = selectedTask();
    if (!key.empty()) session_.openTask(key);
}

void HostWindow::saveToCatalog() {
    const std::string key = selectedTask();
    if (!key.empty()) session_.saveToCatalog(key);
}

void HostWindow::deleteTask() {
    const std::string key = selectedTask();
    if (key.empty()) return;
    const auto answer = QMessageBox::question(this, windowTitle(),
                                              "Delete the selected task with its appointments and keyword links?");
    if (answer != QMessageBox::Yes) return;
    try {
        store_.deleteTask(key);
        log(QStringLiteral("Deleted task %1").arg(QString::fromStdString(key)));
    } catch (const std::exception& e) {
        log(QStringLiteral("Could not remove the task: %1").arg(e.what()));
    }
    refresh();
}

void HostWindow::log(const QString& line) {
    log_->appendPlainText(QTime::currentTime().toString("HH:mm:ss ") + line);
}

}  // namespace qv
