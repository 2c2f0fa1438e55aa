#include "dialogs/checklists/frmChecklistEditor.h"

#include "session/globals/SessionGlobals.h"
#include "store/ErrorPath.h"
#include "store/SaveTransaction.h"
#include "store/StoreQueries.h"
#include "store/clsCheckLists.h"
#include "toolkit/Ports.h"
#include "toolkit/Translate.h"
#include "toolkit/Ui.h"
#include "values/types/CCreateGuid.h"

namespace qv {

namespace {
constexpr const char* kModule = "frmChecklistEditor";

Query rowQuery(const std::string& key) {
    return queries::checklistRow(key);
}
}  // namespace

frmChecklistEditor::frmChecklistEditor() : Form(kModule) {
    setCaption(kProgramTitle);
    smtChecklist.add(ttTextBox, "NAME", tr("Name:"));
    smtChecklist.add(ttTextBox, "DESC", tr("Description:"));
    smtAction.add(ttButton, "CANCEL", tr("&Cancel"));
    smtAction.add(ttButton, "SAVE", tr("&Save"));
    addControl("smtChecklist", smtChecklist);
    addControl("smtAction", smtAction);
    addControl("spellContent", spellContent);
    smtAction.Click.connect([this](Tool& t) { smtAction_Click(t); });
}

bool frmChecklistEditor::Setup(const std::string& key, const std::array<std::string, 6>& UStuff,
                               Form* owner) {
    const bool ready = trap(kModule, "Setup", [&] {
        key_ = key;
        UStuff_ = UStuff;
        load();
        if (!isNew()) loadChecklist();
    });
    if (ready) showModal(owner);
    return ready;
}

// A checklist deleted meanwhile opens blank and is saved anew under its key.
void frmChecklistEditor::loadChecklist() {
    clsCheckLists source;
    source.SetSQL(rowQuery(key_));
    RecordsetPtr rs;
    if (!source.GetDataKEY(rs) || rs->EOF_()) return;
    field("NAME").setText(rs->Fields("ckName").value().toText());
    field("DESC").setText(rs->Fields("ckDesc").value().toText());
    spellContent.setText(rs->Fields("ckContent").value().toText());
}

void frmChecklistEditor::smtAction_Click(Tool& t) {
    trap(kModule, "smtAction_Click", [&] {
        if (t.key() == "SAVE")
            save();
        else if (t.key() == "CANCEL")
            unload();
    });
}

void frmChecklistEditor::Form_KeyDown(int32_t keyCode, int32_t /*shift*/) {
    trap(kModule, "Form_KeyDown", [&] {
        if (keyCode == vbKeyEscape) unload();
    });
}

// The owner hears of the saved key after the editor has closed.
bool frmChecklistEditor::save() {
    if (field("NAME").text().empty()) {
        ui().msgBox(tr("Enter a name for this Checklist."), vbOKOnly + vbInformation, kProgramTitle);
        return false;
    }
    const std::string key = isNew() ? CCreateGuid::guid() : key_;
    SaveTransaction save;
    clsCheckLists source;
    source.SetSQL(rowQuery(key));
    RecordsetPtr rs;
    if (!source.GetDataKEY(rs)) return false;
    if (rs->EOF_()) {
        rs->AddNew();
        rs->Fields("ckGUIDID") = key;
    }
    rs->Fields("ckName") = field("NAME").text();
    rs->Fields("ckDesc") = field("DESC").text();
    rs->Fields("ckContent") = spellContent.text();
    rs->Update();
    rs->UpdateBatch(adAffectAllChapters);
    rs->Close();
    save.commit();
    const bool wasNew = isNew();
    unload();
    if (wasNew)
        returnNewCKGuid(key);
    else
        returnUpdatedCKGuid(key);
    return true;
}

}  // namespace qv
