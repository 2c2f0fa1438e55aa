#pragma once
// Filling the Existing Task dialog: the lists of its setup and the task's
// row read into the tools and the TaskRecord.

#include <cstdint>

namespace qv {

class frmExistingTask;
class Recordset;

class ExistingTaskLoader {
public:
    explicit ExistingTaskLoader(frmExistingTask& f) : f_(f) {}

    // The setup's steps up to the task itself; false when the store failed.
    bool fillLists();
    void GetETASK();

private:
    void setSpellChecking();
    void fillTexts(Recordset& row);
    void fillPicks(Recordset& row);
    void fillTimes(Recordset& row);
    void fillDeadline(Recordset& row);
    void fillStatus(Recordset& row);
    void fillChecklist(Recordset& row);

    frmExistingTask& f_;
};

}  // namespace qv
