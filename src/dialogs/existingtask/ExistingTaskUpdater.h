#pragma once
// The update of a stored task: the columns the dialog changed go to its
// open row, a finished task from the Task Catalog moves the item's time
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
    void writeColumns(Recordset& row, double now);
    [[nodiscard]] bool takeTimeSpent();
    void writeChecklist(Recordset& row);
    // tskTimeN0..N4 of the catalog item move one place on.
    static void shiftCatalogHistory(Recordset& row);
    void readOutlookEntry(std::string& entry, std::string& taskKey);

    frmExistingTask& f_;
};

}  // namespace qv
