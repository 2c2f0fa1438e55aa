#pragma once
// The handlers of the New Task dialog's sheets: picks that re-check the
// entry, adding a project or keyword on the way, and the deadline's small
// behaviours.

#include <string>

#include "dialogs/shared/AddPickers.h"

namespace qv {

class frmTask3;
class Tool;

class NewTaskPickers {
public:
    explicit NewTaskPickers(frmTask3& f);
    ~NewTaskPickers();

    void smtLevels_Click(Tool& tool);
    void smtTimeNeeded_Click(Tool& tool);
    void spellTask_Change();
    void smtProj_Click(Tool& tool);
    void smtKeywords_Click(Tool& tool);
    void smtOther_Click(Tool& tool);
    void smtOther_Change(Tool& tool, const std::string& property);
    void ctDeadline_Change();

    void fNewProject_ProjectAdded(const std::string& name);
    void fNewKeyword_KeywordAdded();

private:
    void openAddProject();
    void openAddKeyword();
    void clearDeadline();

    frmTask3& f_;
    AddPickers add_;
};

}  // namespace qv
