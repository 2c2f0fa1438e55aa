#pragma once
// The demo task manager's main window: the task list with its Current List
// filter and project choice, the Task Catalog, the commands that open the
// component, and a log of the component's events.

#include <cstdint>

#include <QMainWindow>

class QAction;
class QKeySequence;
class QCheckBox;
class QComboBox;
class QListWidget;
class QPlainTextEdit;
class QTableView;

namespace qv {

class AppointmentList;
class HostSession;
class TaskFileMenu;
class HostStore;
class TaskTableModel;

class HostWindow : public QMainWindow {
    Q_OBJECT
public:
    HostWindow(HostStore& store, HostSession& session, QWidget* parent = nullptr);

    [[nodiscard]] TaskTableModel& tasks() const { return *tasks_; }
    // The key of the project chosen above the list; empty for all.
    [[nodiscard]] std::string chosenProject() const;
    // Whether the list shows only the Current List.
    [[nodiscard]] bool currentListShown() const;
    // File > the calendar and spreadsheet commands.
    [[nodiscard]] TaskFileMenu& files() const { return *files_; }
    void refresh();
    void newTask();
    void taskFromCatalog();
    // Asks for another program's folder and uses it.
    void chooseFolder();
    // Mode 2 on the chosen appointment of the chosen task.
    void workAppointment();
    // A new hour's appointment for the chosen task.
    void scheduleAppointment();
    [[nodiscard]] AppointmentList& appointments() const { return *appointments_; }
    // Commands on the task selected in the list.
    void openTask();
    void saveToCatalog();
    void deleteTask();
    [[nodiscard]] std::string selectedTask() const;
    void selectTask(const std::string& key);
    // Opens a help topic in the component's help pop-up.
    void openHelp(int32_t topic);

private:
    QAction* action(const char* name, const QString& text, const QKeySequence& keys, bool enabled);
    void buildActions();
    void buildMenus();
    void buildToolBar();
    void taskSelectionChanged();
    QWidget* buildTaskPage();
    QWidget* buildCatalogPage();
    void buildLog();
    void refreshProjects();
    void refreshAppointments();
    void log(const QString& line);

    HostStore& store_;
    HostSession& session_;
    TaskTableModel* tasks_;
    QTableView* table_ = nullptr;
    QComboBox* project_ = nullptr;
    QCheckBox* currentOnly_ = nullptr;
    QListWidget* catalog_ = nullptr;
    QPlainTextEdit* log_ = nullptr;
    QAction* fromCatalog_ = nullptr;
    AppointmentList* appointments_ = nullptr;
    QAction* workAppointment_ = nullptr;
    QAction* schedule_ = nullptr;
    QAction* openTask_ = nullptr;
    QAction* saveToCatalog_ = nullptr;
    QAction* delete_ = nullptr;
    QAction* newTask_ = nullptr;
    QAction* folder_ = nullptr;
    QAction* quit_ = nullptr;
    QAction* helpIndex_ = nullptr;
    QAction* tour_ = nullptr;
    TaskFileMenu* files_ = nullptr;
};

}  // namespace qv
