#pragma once
// Keywords and the project of a task in the Existing Task dialog: the
// keyword ticks and their links in TaskKeywords, rewritten whole on each
// save, and adding a keyword or a project without leaving the dialog.
// Unlike the New Task dialog, the project is a drop-down entry of
// "PROJECT", and an added keyword ticks from the stored links again.

#include <string>

#include "dialogs/shared/AddPickers.h"

namespace qv {

class frmExistingTask;
class Tool;

class ExistingTaskKeywords {
public:
    explicit ExistingTaskKeywords(frmExistingTask& f);
    ~ExistingTaskKeywords();

    bool build();
    bool tickFromStore();
    void smtKeywords_Click(Tool& tool);
    // smtABOUT_Change's project case; false for any other change.
    bool projectChanged(Tool& tool);
    void fNewKeyword_KeywordAdded();
    void fNewProject_ProjectAdded(const std::string& name);
    // The last step of the update: every link of the task deleted, then
    // one row per ticked keyword.
    void rewriteLinks();
    // The catalog save's links: added for the ticks of the packed list,
    // with no link deleted first.
    void addCatalogLinks(const std::string& taskGUID);

    // Add Project and Add Keyword while they are shown.
    [[nodiscard]] AddPickers& adders() { return add_; }

private:
    void openAddKeyword();
    void openAddProject();

    frmExistingTask& f_;
    AddPickers add_;
};

}  // namespace qv
