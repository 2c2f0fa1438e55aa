#pragma once
// Making the Task Appointment dialog ready: the lists of its picks, and the
// reading of the slot's row and its task's row into the tools (GetTAS).

#include <string>

namespace qv {

class frmTAS2;
class Recordset;
class StoredRow;

class AppointmentLoader {
public:
    explicit AppointmentLoader(frmTAS2& f) : f_(f) {}

    // Status, importance, difficulty and the projects.
    void fillLists();
    void GetTAS();
    // END minus START, each a time of day rounded to four decimals of a
    // day first, in minutes; a slot past midnight is negative.
    [[nodiscard]] std::string getTATimeNeeded();

private:
    void fillProjects();
    // False when the slot's row is not there once.
    bool readAppointment();
    void readTask();
    [[nodiscard]] static int32_t readStatus(StoredRow& row);
    void showStatus(int32_t status);
    void readChecklist(Recordset& task);

    frmTAS2& f_;
};

}  // namespace qv
