#pragma once
// The update of a stored task: the columns the dialog changed go to its
// row as loaded (checked against another user's change to the same field), a finished task from the Task Catalog moves the item's time
// history on, a task linked to Outlook is told to the host, and the
// keyword links are rewritten.

#include <string>

namespace qv {

class frmExistingTask;
class Recordset;

class ExistingTaskUpdater {
public:
    explicit ExistingTaskUpdater(frmExistingTask& f) : f_(f) {}

    bool UpdateTask();

private:
    // One try of the save; a WriteConflict leaves it undone.
    bool save(double now, std::string& outlookEntry, std::string& taskKey);
    void writeColumns(Recordset& row, double now);
    static void markBookkeeping(Recordset& row);
    static void takeOthersChanges(Recordset& row);
    [[nodiscard]] bool takeTimeSpent();
    void writeChecklist(Recordset& row);
    // tskTimeN0..N4 of the catalog item move one place on.
    static void shiftCatalogHistory(Recordset& row);
    void readOutlookEntry(std::string& entry, std::string& taskKey);

    frmExistingTask& f_;
};

}  // namespace qv
