#pragma once
// The live check of the New Task dialog: it lights the five ready flags,
// tallies the possible points and switches the add tools on or off.

#include <string>

namespace qv {

class frmTask3;
class Tool;

class NewTaskValidation {
public:
    explicit NewTaskValidation(frmTask3& f) : f_(f) {}

    // True if the entry may be added; does nothing while setting up.
    bool ValidateTask();
    void PossTallyPoints();

private:
    bool checkDeadTime();
    bool checkDescription();
    bool checkFlag(const char* key, bool good, const char* badTip, const char* goodTip);
    bool checkNewChecklist();
    void setAddTools(bool enabled);

    frmTask3& f_;
};

}  // namespace qv
