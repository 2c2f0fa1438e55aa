#pragma once
// Add Project and Add Keyword opened from a task dialog: each shown as a
// modal child of the dialog, unloaded and let go when it closes. The
// dialog is told of what was added and of a fault through its callbacks.

#include <functional>
#include <memory>
#include <string>

namespace qv {

class Form;
class frmAddKeyword;
class frmAddProject;

class AddPickers {
public:
    explicit AddPickers(Form& owner) : owner_(owner) {}
    ~AddPickers();

    // The Add Project dialog stays open for several projects.
    void openAddProject(std::function<void(const std::string&)> added, std::function<void()> fault);
    // Leaves SettingUp false when it closes.
    void openAddKeyword(std::function<void()> added, std::function<void()> fault);

    // The dialogs while they are shown.
    std::shared_ptr<frmAddProject> fNewProject;
    std::shared_ptr<frmAddKeyword> fNewKeyword;

private:
    Form& owner_;
};

}  // namespace qv
