#pragma once
// The columns every new task row and Task Catalog item takes from the
// packed TaskRecord alike. Status, Date Done and the links the dialogs
// write in their own ways.

#include <cstdint>

namespace qv {

class Recordset;
struct TaskRecord;

class TaskColumns {
public:
    // A new row has no schedule; a deadline of 1.0 or less and the Current
    // List's number of a task not on it stay empty.
    static void writeNew(Recordset& rs, const TaskRecord& r, int32_t possPoints);
};

}  // namespace qv
