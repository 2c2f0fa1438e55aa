#pragma once
// The actions of the Task Appointment dialog: its action bar, the box
// "Task is Done", the keys Enter and Esc, and closing by the window.

#include <cstdint>

namespace qv {

class frmTAS2;
class Tool;

class AppointmentActions {
public:
    explicit AppointmentActions(frmTAS2& f) : f_(f) {}

    void smtActions_Click(Tool& tool);
    void smtReady_Click(Tool& tool);
    void Form_KeyDown(int32_t keyCode);
    // False when the user chose to stay.
    [[nodiscard]] bool Form_QueryUnload(int32_t unloadMode);

private:
    void editTask();
    void save();

    frmTAS2& f_;
};

}  // namespace qv
