#include "view/HostWindow.h"

#include <exception>

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QDockWidget>
#include <QFileDialog>
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

#include "help/HelpTopics.h"
#include "session/globals/SessionGlobals.h"
#include "view/AppointmentList.h"
#include "toolkit/HelpViewer.h"
#include "toolkit/Ports.h"
#include "view/HostSession.h"
#include "view/HostStore.h"
#include "view/TaskFileMenu.h"
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
    connect(add("actFolder", "Store &Folder...", true), &QAction::triggered, this, &HostWindow::chooseFolder);
    bar->addSeparator();
    openTask_ = add("actOpenTask", "&Open Task", false);
    connect(openTask_, &QAction::triggered, this, &HostWindow::openTask);
    workAppointment_ = add("actWorkAppointment", "&Work Appointment", false);
    connect(workAppointment_, &QAction::triggered, this, &HostWindow::workAppointment);
    schedule_ = add("actSchedule", "Schedule Appointmen&t", false);
    connect(schedule_, &QAction::triggered, this, &HostWindow::scheduleAppointment);
    saveToCatalog_ = add("actSaveToCatalog", "&Save to Catalog", false);
    connect(saveToCatalog_, &QAction::triggered, this, &HostWindow::saveToCatalog);
    bar->addSeparator();
    connect(add("actHelpIndex", "&Help Index", true), &QAction::triggered, this, [this] { openHelp(kHelpIndexTopic); });
    connect(add("actTour", "Getting Started &Tour", true), &QAction::triggered, this, [this] { openHelp(kTourTopic); });
    delete_ = new QAction("&Delete Task", this);
    delete_->setObjectName("actDelete");
    delete_->setShortcut(QKeySequence::Delete);
    delete_->setEnabled(false);
    connect(delete_, &QAction::triggered, this, &HostWindow::deleteTask);
    buildMenus();
}

void HostWindow::buildMenus() {
    QMenu* file = menuBar()->addMenu("&File");
    files_ = new TaskFileMenu(*this, store_);
    files_->addTo(file);
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
    QAction* index = help->addAction("&Help Index", this, [this] { openHelp(kHelpIndexTopic); });
    index->setObjectName("actHelp");
    index->setShortcut(QKeySequence::HelpContents);
}

void HostWindow::openHelp(int32_t topic) {
    if (HelpViewer* help = ports().help) help->openHelpPop(topic, session_.printInfo(0));
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
    column->addWidget(table_, 3);
    // Enter or a double click opens the task.
    connect(table_, &QAbstractItemView::activated, this, &HostWindow::openTask);
    connect(table_->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &HostWindow::taskSelectionChanged);
    auto* apptLabel = new QLabel("&Appointments of the chosen task:", page);
    appointments_ = new AppointmentList(store_, page);
    apptLabel->setBuddy(appointments_);
    column->addWidget(apptLabel);
    column->addWidget(appointments_, 1);
    connect(appointments_, &QListWidget::currentRowChanged, this,
            [this](int row) { workAppointment_->setEnabled(row >= 0); });
    connect(appointments_, &QListWidget::itemActivated, this, &HostWindow::workAppointment);
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

bool HostWindow::currentListShown() const { return currentOnly_->isChecked(); }

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

void HostWindow::refreshAppointments() {
    const std::string task = selectedTask();
    appointments_->showTask(task);
    schedule_->setEnabled(!task.empty());
    workAppointment_->setEnabled(!appointments_->chosen().empty());
}

void HostWindow::workAppointment() {
    const std::string key = appointments_->chosen();
    if (!key.empty()) session_.workAppointment(key);
}

void HostWindow::scheduleAppointment() {
    const std::string task = selectedTask();
    if (task.empty()) return;
    const std::string key = session_.scheduleAppointment(task);
    appointments_->showTask(task);
    for (int i = 0; i < appointments_->count(); ++i)
        if (appointments_->item(i)->data(Qt::UserRole).toString().toStdString() == key) appointments_->setCurrentRow(i);
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
    refreshAppointments();
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

void HostWindow::chooseFolder() {
    const QString dir = QFileDialog::getExistingDirectory(this, QStringLiteral("Folder of the Quorvel store"),
                                                          QString::fromStdString(store_.folder()));
    if (!dir.isEmpty()) session_.useFolder(dir.toStdString());
}

void HostWindow::log(const QString& line) {
    log_->appendPlainText(QTime::currentTime().toString("HH:mm:ss ") + line);
}

}  // namespace qv
