#include "dialogs/add/frmAddKeyword.h"

#include "store/ErrorPath.h"
#include "store/SaveTransaction.h"
#include "store/StoreQueries.h"
#include "store/clsNewKeyword.h"
#include "toolkit/Translate.h"
#include "values/types/CCreateGuid.h"

namespace qv {

namespace {
constexpr const char* kModule = "frmAddKeyword";
}  // namespace

frmAddKeyword::frmAddKeyword()
    : AddDialog(kModule, {"ADD", "OK", 8, QV_N("Keyword \"%1\" created."), QV_N(" - Add Keyword")}) {
    smtKeywords.add(ttTextBox, "CATEGORY", tr("Category:")).setTip(tr("Pick a category or enter a new category"));
    smtKeywords.add(ttTextBox, "KEYWORD", tr("Keyword:")).setTip(tr("Enter the new Keyword"));
    smtAction.add(ttButton, "HELP", tr("&Help"));
    smtAction.add(ttButton, "OK", tr("D&one")).setTip(tr("Close this dialog box"));
    smtAction.add(ttButton, "ADD", tr("A&dd")).setTip(tr("Add this Keyword"));
    addControl("smtKeywords", smtKeywords);
    addControl("lblCreate", lblCreate);
}

// A category exists only while a keyword names it.
bool frmAddKeyword::LoadCategories() {
    return trap(kModule, "LoadCategories", [&] {
        clsNewKeyword source;
        source.SetSQL(queries::keywordSubjects());
        RecordsetPtr rs;
        if (!source.GetData(rs)) return false;
        Tool& list = field("CATEGORY");
        list.clearItems();
        for (; !rs->EOF_(); rs->MoveNext())
            list.addItem(ttOption, {}, rs->Fields("keySubject").value().toText());
        return true;
    });
}

// The message for an empty category speaks of a Keyword; kept.
bool frmAddKeyword::validateNew() {
    return trap(kModule, "validateNew", [&] {
        const char* problem = nullptr;
        if (field("KEYWORD").text().empty())
            problem = QV_N("Enter a new Keyword.");
        else if (field("CATEGORY").text().empty())
            problem = QV_N("Select or enter a new Keyword.");
        if (problem) {
            info(tr(problem));
            return false;
        }
        const auto exists = keywordExists();
        if (exists.value_or(false)) {
            info(tr("That Keyword already exists."));
            field("KEYWORD").setText({});
        }
        return exists == false;
    });
}

// Exact comparison, letter case included: unlike projects.
std::optional<bool> frmAddKeyword::keywordExists() const {
    clsNewKeyword source;
    source.SetSQL(queries::keywordsByName());
    RecordsetPtr rs;
    if (!source.GetData(rs)) return std::nullopt;
    const std::string keyword = trimSpaces(field("KEYWORD").text());
    const std::string category = trimSpaces(field("CATEGORY").text());
    for (; !rs->EOF_(); rs->MoveNext())
        if (rs->Fields("keyKeyword").value().toText() == keyword &&
            rs->Fields("keySubject").value().toText() == category)
            return true;
    return false;
}

// UpdateBatch alone writes the new row here, with no Update before it.
bool frmAddKeyword::createNewKeyword() {
    return trap(kModule, "createNewKeyword", [&] {
        const std::string key = CCreateGuid::guid();
        SaveTransaction save;
        clsNewKeyword source;
        source.SetSQL(queries::keywordsForAdding());
        RecordsetPtr rs;
        if (!source.GetData(rs)) return false;
        rs->AddNew();
        rs->Fields("keySubject") = trimSpaces(field("CATEGORY").text());
        rs->Fields("keyKeyword") = trimSpaces(field("KEYWORD").text());
        rs->Fields("keyGUIDID") = key;
        rs->UpdateBatch(adAffectAllChapters);
        save.commit();
        return true;
    });
}

std::string frmAddKeyword::addedName() const {
    return field("KEYWORD").text();
}

// The category keeps its text, so a run of keywords goes into one
// category; the list itself is not reloaded until the next opening.
void frmAddKeyword::afterAdd(AddTrigger) {
    KeywordAdded();
    field("KEYWORD").setText({});
}

}  // namespace qv
