#pragma once
// Adds keywords, one after another, into a category that stays put.

#include <optional>
#include <string>

#include "dialogs/add/AddDialog.h"
#include "toolkit/Label.h"
#include "toolkit/Translate.h"

namespace qv {

class frmAddKeyword : public AddDialog {
public:
    frmAddKeyword();

    // Fills the CATEGORY list; the owner calls it before the show.
    bool LoadCategories();
    // Shows its own message and answers false on the first failed rule.
    bool validateNew() override;
    // True once the KEYWORDS row is written.
    bool createNewKeyword();

    // The owner rereads its whole list.
    Event<> KeywordAdded;

protected:
    bool createNew() override { return createNewKeyword(); }
    [[nodiscard]] std::string addedName() const override;
    void afterAdd(AddTrigger how) override;

private:
    [[nodiscard]] Tool& field(const char* key) const { return smtKeywords.tool(key); }
    // Empty when the keywords could not be read (already reported).
    [[nodiscard]] std::optional<bool> keywordExists() const;

    Sheet smtKeywords{"smtKeywords", tr("Enter Category and Keyword")};
    Label lblCreate{"lblCreate", tr(" Create a new Keyword:")};
};

}  // namespace qv
