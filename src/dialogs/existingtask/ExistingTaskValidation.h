#pragma once
// The checks of the Existing Task dialog and the edits that run them: the
// status and what Done does, the dirty flag and the "UPDATE" action.

#include <cstdint>
#include <string>

namespace qv {

class frmExistingTask;
class Tool;

class ExistingTaskValidation {
public:
    explicit ExistingTaskValidation(frmExistingTask& f) : f_(f) {}

    // Packs, tallies, and says whether the dialog may be saved; several
    // messages can appear in one run.
    bool ValidateTask();
    int32_t PossTallyPoints();

    // The status cases of smtABOUT_Change; false for any other tool.
    bool statusChanged(Tool& tool);
    // "IMP" and "DIFF" take the chosen entry's number and wait for the click.
    bool levelChanged(Tool& tool);
    void smtABOUT_Click();
    void smtReady_Click(Tool& tool);
    // spellTask_Change and SpellNotes_Change.
    void textChanged();
    // No setting-up guard, and the dirty flag is what the check left.
    void ctDeadline_Change();

private:
    [[nodiscard]] bool checkDeadTime() const;

    frmExistingTask& f_;
};

}  // namespace qv
