#pragma once
// The action strip of the Existing Task dialog, its keys, its closing
// rules and the time tools with the stopwatch.

#include <cstdint>
#include <memory>
#include <string>

namespace qv {

class frmExistingTask;
class StopwatchDisplay;
class Tool;

class ExistingTaskActions {
public:
    explicit ExistingTaskActions(frmExistingTask& f);
    ~ExistingTaskActions();

    void smtActions_Click(Tool& tool);
    void Form_KeyDown(int32_t keyCode, bool& swallowed);
    void Form_QueryUnload(bool& cancel, int32_t unloadMode);
    // The leave path of Cancel and Escape; false when a question got No.
    bool leave();

    void smtTimes_Click(Tool& tool);
    void smtTimes_Change();
    void smtTimes_AfterEdit(Tool& tool);
    void Timer2_Timer();
    // The stopwatch stops with the dialog; nothing of it is saved.
    void stopStopwatch();

private:
    // Mode 1's update or mode 5's catalog save, then the events and the
    // close. The key path tells TaskUpdated for a catalog save too.
    void save(bool byKey);
    void enableUpdate();

    frmExistingTask& f_;
    std::unique_ptr<StopwatchDisplay> stopwatch_;
};

}  // namespace qv
