#pragma once
// Checking the Task Appointment dialog and writing it back: the slot's row
// in TASKAPPTS, then its task's row in TASKS with the points worked out
// anew from the row and Time Scheduled summed over the task's slots. Both
// rows are those the dialog loaded.

#include <string>

namespace qv {

class frmTAS2;
class Recordset;

class AppointmentSaver {
public:
    explicit AppointmentSaver(frmTAS2& f) : f_(f) {}

    bool ValidateTask();
    // True when both rows were written.
    bool UpdateTASTask();

private:
    // The first failing check's message, or nullptr.
    [[nodiscard]] const char* firstFailure() const;
    // The blank Time Spent question; false when the user keeps it blank.
    bool askBlankTimeSpent();
    // One try of the save; a WriteConflict leaves it undone.
    bool saveRows();
    void writeAppointment(Recordset& rs);
    void writeTask(Recordset& rs);
    void writeTaskSums(Recordset& rs);
    void markWorked(Recordset& rs);
    void writeSlotTimes(Recordset& rs);
    void writeTaskStatus(Recordset& rs);
    void writeTaskChecklist(Recordset& rs, const std::string& oldKey);
    // Time Spent of the slot: the slot's length when it is empty or no time.
    void fillBlankTimeSpent();

    frmTAS2& f_;
};

}  // namespace qv
