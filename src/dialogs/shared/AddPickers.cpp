#include "dialogs/shared/AddPickers.h"

#include "dialogs/add/frmAddKeyword.h"
#include "dialogs/add/frmAddProject.h"
#include "session/globals/SessionGlobals.h"

namespace qv {

AddPickers::~AddPickers() = default;

void AddPickers::openAddProject(std::function<void(const std::string&)> added, std::function<void()> fault) {
    fNewProject = std::make_shared<frmAddProject>();
    fNewProject->ProjectAdded.connect(std::move(added));
    fNewProject->GotErrExitNow.connect(std::move(fault));
    fNewProject->SetTaskPrintSetting(g().TaskPrintSetting);
    fNewProject->showModal(&owner_);
    fNewProject->unload();
    fNewProject.reset();
}

void AddPickers::openAddKeyword(std::function<void()> added, std::function<void()> fault) {
    fNewKeyword = std::make_shared<frmAddKeyword>();
    fNewKeyword->KeywordAdded.connect(std::move(added));
    fNewKeyword->GotErrExitNow.connect(std::move(fault));
    fNewKeyword->LoadCategories();
    fNewKeyword->showModal(&owner_);
    fNewKeyword->unload();
    fNewKeyword.reset();
    g().SettingUp = false;
}

}  // namespace qv
