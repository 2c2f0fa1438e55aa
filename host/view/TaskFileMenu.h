#pragma once
// The File menu's commands of calendar and spreadsheet files: Export
// Tasks... (the tasks the list shows), Export Task... (the chosen one),
// Import Tasks... and Export to Spreadsheet..., each asking for its file
// and telling the outcome in a message box. The list is refreshed after an
// import.

#include <functional>
#include <string>

#include <QObject>
#include <QString>

class QAction;
class QMenu;

namespace qv {

struct InteropResult;
class HostWindow;
class HostStore;

class TaskFileMenu : public QObject {
    Q_OBJECT
public:
    enum class FileKind { CalendarToSave, CalendarToOpen, SpreadsheetToSave };

    TaskFileMenu(HostWindow& window, HostStore& store);
    // Adds the four commands to menu.
    void addTo(QMenu* menu);

    void exportTasks();
    void exportTask();
    void importTasks();
    void exportSpreadsheet();

    // Asks for the file (a file dialog); an empty name cancels. Tests
    // answer it themselves.
    std::function<QString(FileKind)> chooseFile;
    // Tells the outcome (a message box); tests read it.
    std::function<void(bool ok, const QString& text)> tell;

private:
    [[nodiscard]] QString askFile(FileKind kind) const;
    void prepareStore() const;
    void withFile(FileKind kind, const std::function<InteropResult(const std::string&)>& command);

    HostWindow& window_;
    HostStore& store_;
};

}  // namespace qv
