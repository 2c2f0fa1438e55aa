#pragma once
// Keywords and the project of a task in the Existing Task dialog: the
// keyword ticks and their links in TaskKeywords, rewritten whole on each
// save, and adding a keyword or a project without leaving the dialog.
// Unlike the New Task dialog, the project is a drop-down entry of
// "PROJECT", and an added keyword ticks from the stored links again.

#include <string>
#include <unordered_map>
#include <unordered_set>

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
    // The last step of the update: the user's changes to the ticks since
    // they were loaded, applied to the links as they stand, every link
    // written anew.
    void rewriteLinks();
    // The catalog save's links: added for the ticks of the packed list,
    // with no link deleted first.
    void addCatalogLinks(const std::string& taskGUID);

    // Add Project and Add Keyword while they are shown.
    [[nodiscard]] AddPickers& adders() { return add_; }

private:
    void openAddKeyword();
    [[nodiscard]] std::unordered_set<std::string> tickedKeys() const;
    [[nodiscard]] static std::unordered_map<std::string, std::string> keywordCaptions(
        const std::string& taskGUID);
    void openAddProject();

    frmExistingTask& f_;
    AddPickers add_;
    // The keys ticked when the links were last read from the store (upper case).
    std::unordered_set<std::string> loadedLinks_;
};

}  // namespace qv
