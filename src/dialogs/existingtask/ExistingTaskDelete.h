#pragma once
// Deleting a task: the dialog asks and tells the host, which removes the
// rows. The component deletes nothing itself.

#include <string>

namespace qv {

class frmExistingTask;

class ExistingTaskDelete {
public:
    explicit ExistingTaskDelete(frmExistingTask& f) : f_(f) {}

    // The question for the packed record's two flags.
    [[nodiscard]] static std::string question(bool hasChecklist, bool hasSchedule);
    void deleteTask();

private:
    frmExistingTask& f_;
};

}  // namespace qv
