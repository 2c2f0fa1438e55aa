#pragma once
// Mode 5's save: a copy of the task as a new Task Catalog item that shares
// the task's key, its keyword links added beside the task's own, then the
// dialog emptied for the next.

namespace qv {

class frmExistingTask;
class Recordset;

class ExistingTaskCatalogSave {
public:
    explicit ExistingTaskCatalogSave(frmExistingTask& f) : f_(f) {}

    // A second save of the same task fails on the key and takes the error path.
    bool SaveToTaskCat();

private:
    void writeColumns(Recordset& rs);
    void reset();

    frmExistingTask& f_;
};

}  // namespace qv
