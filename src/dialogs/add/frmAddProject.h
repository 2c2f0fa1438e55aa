#pragma once
// Adds projects, one after another, and tells the owner of each.

#include <optional>
#include <string>

#include "dialogs/add/AddDialog.h"
#include "toolkit/DateBox.h"
#include "toolkit/Label.h"
#include "toolkit/Translate.h"

namespace qv {

class frmAddProject : public AddDialog {
public:
    frmAddProject();

    // Shows its own message and answers false on the first failed rule.
    bool validateNew() override;
    // True once the PROJECTS row is written.
    bool createNewProject();

    // The name as it was typed, not trimmed.
    Event<const std::string&> ProjectAdded;

protected:
    void Form_Load() override;
    bool createNew() override { return createNewProject(); }
    [[nodiscard]] std::string addedName() const override;
    void afterAdd(AddTrigger how) override;
    bool mayClose() override;

private:
    [[nodiscard]] std::string text(const char* key) const;
    // Empty when the project list could not be read (already reported).
    [[nodiscard]] std::optional<bool> nameIsTaken() const;
    void resetDate();

    Sheet smtProject{"smtProject"};
    DateBox cboDate{"cboDate"};
    Label lblCreate{"lblCreate", tr(" Create a New Project:")};
    Label lblOptional{"lblOptional", tr("(Optional)")};
};

}  // namespace qv
