#pragma once
// Filling the Existing Task dialog: the lists of its setup and the task's
// row read into the tools and the TaskRecord.

#include <cstdint>

namespace qv {

class frmExistingTask;
class StoredRow;

class ExistingTaskLoader {
public:
    explicit ExistingTaskLoader(frmExistingTask& f) : f_(f) {}

    // The setup's steps up to the task itself; false when the store failed.
    bool fillLists();
    void GetETASK();

private:
    void setSpellChecking();
    void fillTexts(StoredRow& row);
    void fillPicks(StoredRow& row);
    void fillTimes(StoredRow& row);
    void fillDeadline(StoredRow& row);
    void fillStatus(StoredRow& row);
    void fillChecklist(StoredRow& row);

    frmExistingTask& f_;
};

}  // namespace qv
