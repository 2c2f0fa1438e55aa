#pragma once
// The commands of the New Task dialog's tool bar, its keys and its close:
// add to the task list or the Task Catalog, cancel, clear, reset the
// layout, help and printing.

#include <cstdint>
#include <string>

namespace qv {

class frmTask3;
class Tool;

class NewTaskActions {
public:
    explicit NewTaskActions(frmTask3& f) : f_(f) {}

    void smtActions_Click(Tool& tool);
    void Form_KeyDown(int32_t keyCode);
    void Form_QueryUnload(bool& cancel, int32_t unloadMode);

private:
    void addToTaskList();
    void addToCatalog();
    void closeOrCancel();
    void clearAll();
    void afterAdd();
    [[nodiscard]] bool dirty() const;

    frmTask3& f_;
};

}  // namespace qv
