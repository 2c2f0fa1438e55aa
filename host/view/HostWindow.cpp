#include "view/HostWindow.h"

#include <algorithm>
#include <exception>

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QDockWidget>
#include <QFileDialog>
#include <QFont>
#include <QFontMetrics>
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
#include "kit/QtText.h"
#include "kit/ScreenFit.h"
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
    setWindowTitle(qtr("%1 - Task Manager").arg(kProgramTitle));
    buildActions();
    auto* tabs = new QTabWidget(this);
    tabs->setObjectName("tabs");
    tabs->setAccessibleName(qtr("Task lists"));
    // Its tab bar takes the focus for it.
    tabs->setFocusPolicy(Qt::NoFocus);
    tabs->addTab(buildTaskPage(), qtr("Tasks"));
    tabs->addTab(buildCatalogPage(), qtr("Task Catalog"));
    setCentralWidget(tabs);
    buildLog();
    connect(&session_, &HostSession::listsChanged, this, &HostWindow::refresh);
    connect(&session_, &HostSession::logged, this, &HostWindow::log);
    resize(ScreenFit::fit(this, QRect(pos(), QSize(980, 620))).size());
    refresh();
}

QAction* HostWindow::action(const char* name, const QString& text, const QKeySequence& keys, bool enabled) {
    auto* a = new QAction(text, this);
    a->setObjectName(name);
    a->setShortcut(keys);
    a->setEnabled(enabled);
    return a;
}

// Every command is an action with a shortcut; the menus hold them all and
// the tool bar the everyday ones.
void HostWindow::buildActions() {
    newTask_ = action("actNewTask", qtr("&New Task"), QKeySequence::New, true);
    connect(newTask_, &QAction::triggered, this, &HostWindow::newTask);
    fromCatalog_ =
        action("actFromCatalog", qtr("Create Task from &Catalog Item"), QKeySequence("Ctrl+Shift+N"), false);
    connect(fromCatalog_, &QAction::triggered, this, &HostWindow::taskFromCatalog);
    folder_ = action("actFolder", qtr("Store &Folder..."), QKeySequence("Ctrl+Shift+O"), true);
    connect(folder_, &QAction::triggered, this, &HostWindow::chooseFolder);
    openTask_ = action("actOpenTask", qtr("&Open Task"), QKeySequence::Open, false);
    connect(openTask_, &QAction::triggered, this, &HostWindow::openTask);
    workAppointment_ =
        action("actWorkAppointment", qtr("&Work Appointment"), QKeySequence("Ctrl+Shift+W"), false);
    connect(workAppointment_, &QAction::triggered, this, &HostWindow::workAppointment);
    schedule_ = action("actSchedule", qtr("&Schedule Appointment"), QKeySequence("Ctrl+Shift+A"), false);
    connect(schedule_, &QAction::triggered, this, &HostWindow::scheduleAppointment);
    saveToCatalog_ = action("actSaveToCatalog", qtr("&Save to Catalog"), QKeySequence("Ctrl+Shift+S"), false);
    connect(saveToCatalog_, &QAction::triggered, this, &HostWindow::saveToCatalog);
    delete_ = action("actDelete", qtr("&Delete Task"), QKeySequence::Delete, false);
    connect(delete_, &QAction::triggered, this, &HostWindow::deleteTask);
    quit_ = action("actQuit", qtr("&Quit"), QKeySequence("Ctrl+Q"), true);
    connect(quit_, &QAction::triggered, this, &QWidget::close);
    helpIndex_ = action("actHelpIndex", qtr("&Help Index"), QKeySequence("F1"), true);
    connect(helpIndex_, &QAction::triggered, this, [this] { openHelp(kHelpIndexTopic); });
    tour_ = action("actTour", qtr("Getting Started &Tour"), QKeySequence("Shift+F1"), true);
    connect(tour_, &QAction::triggered, this, [this] { openHelp(kTourTopic); });
    buildMenus();
    buildToolBar();
}

void HostWindow::buildMenus() {
    QMenu* file = menuBar()->addMenu(qtr("&File"));
    file->setObjectName("mnuFile");
    file->addAction(folder_);
    file->addSeparator();
    files_ = new TaskFileMenu(*this, store_);
    files_->addTo(file);
    file->addSeparator();
    file->addAction(quit_);
    QMenu* tasks = menuBar()->addMenu(qtr("&Task"));
    tasks->setObjectName("mnuTask");
    tasks->addActions({newTask_, openTask_, fromCatalog_, saveToCatalog_});
    tasks->addSeparator();
    tasks->addAction(delete_);
    QMenu* appointments = menuBar()->addMenu(qtr("&Appointment"));
    appointments->setObjectName("mnuAppointment");
    appointments->addActions({workAppointment_, schedule_});
    QMenu* help = menuBar()->addMenu(qtr("&Help"));
    help->setObjectName("mnuHelp");
    help->addActions({helpIndex_, tour_});
}

// Text only, and few enough to fit the window's default width.
void HostWindow::buildToolBar() {
    QToolBar* bar = addToolBar(qtr("Commands"));
    bar->setObjectName("commands");
    bar->setToolButtonStyle(Qt::ToolButtonTextOnly);
    bar->addActions({newTask_, openTask_, saveToCatalog_});
    bar->addSeparator();
    bar->addActions({workAppointment_, schedule_});
    bar->addSeparator();
    bar->addAction(helpIndex_);
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
    project_->setAccessibleName(qtr("Project"));
    auto* projectLabel = new QLabel(qtr("&Project:"), page);
    projectLabel->setBuddy(project_);
    currentOnly_ = new QCheckBox(qtr("Current &List"), page);
    currentOnly_->setObjectName("chkCurrent");
    filters->addWidget(projectLabel);
    filters->addWidget(project_);
    filters->addWidget(currentOnly_);
    filters->addStretch(1);
    column->addLayout(filters);
    table_ = new QTableView(page);
    table_->setObjectName("tblTasks");
    table_->setAccessibleName(qtr("Tasks"));
    table_->setModel(tasks_);
    table_->setSelectionBehavior(QAbstractItemView::SelectRows);
    table_->setAlternatingRowColors(true);
    table_->verticalHeader()->hide();
    table_->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
    table_->horizontalHeader()->setSectionResizeMode(TaskTableModel::Desc, QHeaderView::Stretch);
    // Widths from the text they hold, not from 100,000 rows.
    const auto& fm = fontMetrics();
    table_->setColumnWidth(TaskTableModel::Project, fm.horizontalAdvance(QStringLiteral("Quarterly Reports 2026")));
    table_->setColumnWidth(TaskTableModel::Deadline, fm.horizontalAdvance(QStringLiteral("0000-00-00 00:00")) + 12);
    // A heading longer than its column (in another language) widens it; the
    // description keeps room for its heading on a narrow screen.
    // (measured bold: the chosen row's headings are).
    QHeaderView* header = table_->horizontalHeader();
    QFont boldFont = header->font();
    boldFont.setBold(true);
    const QFontMetrics bold(boldFont), plain(header->font());
    const auto headingWidth = [&](int c) {
        const QString text = tasks_->headerData(c, Qt::Horizontal, Qt::DisplayRole).toString();
        return header->sectionSizeHint(c) + bold.horizontalAdvance(text) - plain.horizontalAdvance(text);
    };
    for (int c = TaskTableModel::Status; c < TaskTableModel::ColumnCount; ++c)
        table_->setColumnWidth(c, std::max(table_->columnWidth(c), headingWidth(c)));
    header->setMinimumSectionSize(headingWidth(TaskTableModel::Desc));
    column->addWidget(table_, 3);
    // Enter or a double click opens the task.
    connect(table_, &QAbstractItemView::activated, this, &HostWindow::openTask);
    connect(table_->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &HostWindow::taskSelectionChanged);
    auto* apptLabel = new QLabel(qtr("Appoint&ments of the chosen task:"), page);
    appointments_ = new AppointmentList(store_, page);
    appointments_->setAccessibleName(qtr("Appointments of the chosen task"));
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
    catalog_->setAccessibleName(qtr("Task Catalog"));
    connect(catalog_, &QListWidget::currentRowChanged, this,
            [this](int row) { fromCatalog_->setEnabled(row >= 0); });
    // Enter or a double click makes a task of the item.
    connect(catalog_, &QListWidget::itemActivated, this, &HostWindow::taskFromCatalog);
    return catalog_;
}

void HostWindow::buildLog() {
    auto* dock = new QDockWidget(qtr("Component Events"), this);
    dock->setObjectName("eventDock");
    log_ = new QPlainTextEdit(dock);
    log_->setObjectName("txtLog");
    log_->setAccessibleName(qtr("Component Events"));
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
    project_->addItem(qtr("(All projects)"), QString());
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
        log(qtr("Could not read the store: %1").arg(e.what()));
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
    const auto answer = QMessageBox::question(
        this, windowTitle(), qtr("Delete the selected task with its appointments and keyword links?"));
    if (answer != QMessageBox::Yes) return;
    try {
        store_.deleteTask(key);
        log(qtr("Deleted task %1").arg(QString::fromStdString(key)));
    } catch (const std::exception& e) {
        log(qtr("Could not remove the task: %1").arg(e.what()));
    }
    refresh();
}

void HostWindow::chooseFolder() {
    const QString dir = QFileDialog::getExistingDirectory(this, qtr("Folder of the Quorvel store"),
                                                          QString::fromStdString(store_.folder()));
    if (!dir.isEmpty()) session_.useFolder(dir.toStdString());
}

void HostWindow::log(const QString& line) {
    log_->appendPlainText(QTime::currentTime().toString("HH:mm:ss ") + line);
}

}  // namespace qv
