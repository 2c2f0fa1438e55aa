#pragma once
// Saving the New Task dialog: one row of TASKS (or TASKSCAT in mode 5) and
// its TaskKeywords rows, then the dialog is reset for the next entry.

namespace qv {

class frmTask3;
class Recordset;

class NewTaskSaver {
public:
    explicit NewTaskSaver(frmTask3& f) : f_(f) {}

    // True after a save; false when the check refused.
    bool SaveTask();

private:
    bool writeTaskAndKeywords();
    bool writeTask();
    void writeColumns(Recordset& rs);
    void writeChecklistLink(Recordset& rs, bool catalog);
    bool writeKeywords();
    void showBanner();
    void resetForNext();

    frmTask3& f_;
};

}  // namespace qv
