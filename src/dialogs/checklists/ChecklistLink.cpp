#include "dialogs/checklists/ChecklistLink.h"

#include "dialogs/checklists/frmChecklistEditor.h"
#include "dialogs/checklists/frmCkPicker.h"
#include "session/globals/SessionGlobals.h"
#include "store/ErrorPath.h"
#include "store/StoreQueries.h"
#include "store/clsCheckLists.h"
#include "toolkit/Form.h"
#include "toolkit/Label.h"
#include "toolkit/Sheet.h"
#include "toolkit/TextEditor.h"
#include "toolkit/Translate.h"

namespace qv {

namespace {
// The picker's rows, in upper case; the editor takes "-new-".
constexpr const char* kPickNew = "-NEW-";
constexpr const char* kPickNone = "-NONE-";
}  // namespace

ChecklistLink::ChecklistLink(Form& owner, Sheet& smtCKActions, TextEditor& spellCK, Label& lblCk,
                             ChecklistState& state, Options options)
    : owner_(owner),
      smtCKActions_(smtCKActions),
      spellCK_(spellCK),
      lblCk_(lblCk),
      state_(state),
      options_(std::move(options)) {
    clickId_ = smtCKActions_.Click.connect([this](Tool& t) { smtCKActions_Click(t); });
}

ChecklistLink::~ChecklistLink() {
    smtCKActions_.Click.disconnect(clickId_);
}

void ChecklistLink::buildTools(Sheet& s) {
    s.add(ttButton, "NEW", tr("New"));
    s.add(ttSeparator, "S1");
    s.add(ttButton, "PICK", tr("Pick..."));
    s.add(ttSeparator, "S2").setVisible(false);
    s.add(ttButton, "EDIT", tr("Edit...")).setVisible(false);
}

const char* ChecklistLink::module() const {
    return owner_.name().c_str();
}

void ChecklistLink::smtCKActions_Click(Tool& t) {
    if (g().SettingUp) return;
    trap(module(), "smtCKActions_Click", [&] {
        if (t.key() == "PICK")
            openPicker();
        else if (t.key() == "NEW")
            openEditor(frmChecklistEditor::kNewKey);
        else if (t.key() == "EDIT")
            openEditor(state_.utilChecklistKey);
    });
}

void ChecklistLink::openPicker() {
    auto picker = std::make_shared<frmCkPicker>();
    ckPicker_ = picker;
    picker->CKPicked.connect([this](const std::string& key) { ckPicker_CKPicked(key); });
    picker->Cancel.connect([this] { ckPicker_Cancel(); });
    picker->load();
    if (!picker->LoadPicker()) return;
    picker->showModal(&owner_);
    if (ckPicker_ == picker) ckPicker_.reset();
}

// The caller keeps the picker alive until its modal wait is over.
void ChecklistLink::closePicker() {
    if (ckPicker_) ckPicker_->hide();
    ckPicker_.reset();
}

void ChecklistLink::openEditor(const std::string& key) {
    auto editor = std::make_shared<frmChecklistEditor>();
    ckFrm_ = editor;
    editor->returnNewCKGuid.connect([this](const std::string& k) { ckFrm_returnNewCKGuid(k); });
    editor->returnUpdatedCKGuid.connect([this](const std::string& k) { ckFrm_returnUpdatedCKGuid(k); });
    editor->GotErrExitNow.connect([this] { ckFrm_GotErrExitNow(); });
    editor->Setup(key, g().UStuff, &owner_);
    if (ckFrm_ == editor) ckFrm_.reset();
}

void ChecklistLink::ckPicker_Cancel() {
    trap(module(), "ckPicker_Cancel", [&] { closePicker(); });
}

void ChecklistLink::ckPicker_CKPicked(const std::string& key) {
    const std::string picked = key;  // the picker holds the original
    trap(module(), "ckPicker_CKPicked", [&] {
        closePicker();
        if (picked == kPickNone)
            unlink();
        else if (picked == kPickNew)
            openEditor(frmChecklistEditor::kNewKey);
        else
            pick(picked);
    });
}

// The store keeps the old link until the dialog saves.
void ChecklistLink::unlink() {
    state_.utilCheckListExists = false;
    state_.utilChecklistKey.clear();
    spellCK_.setText({});
    lblCk_.setCaption(tr("No Checklist"));
    setCKEditMode(0);
}

void ChecklistLink::pick(const std::string& key) {
    state_.utilChecklistKey = key;
    if (!show(key, tr(" Checklist: "))) return;
    setCKEditMode(1);
    if (options_.enableUpdateOnPick)
        if (Tool* update = options_.enableUpdateOnPick->find("UPDATE")) update->setEnabled(true);
}

void ChecklistLink::ckFrm_returnNewCKGuid(const std::string& key) {
    const std::string saved = key;
    trap(module(), "ckFrm_returnNewCKGuid", [&] {
        state_.utilNewChecklistNewGUID = saved;
        state_.utilChecklistKey = saved;
        if (show(saved, tr("Checklist: "))) setCKEditMode(1);
    });
}

void ChecklistLink::ckFrm_returnUpdatedCKGuid(const std::string& key) {
    const std::string saved = key;
    trap(module(), "ckFrm_returnUpdatedCKGuid", [&] {
        if (show(saved, tr("Checklist: "))) setCKEditMode(1);
    });
}

void ChecklistLink::ckFrm_GotErrExitNow() {
    GotErrExitNow();
}

bool ChecklistLink::show(const std::string& key, const std::string& captionLead) {
    clsCheckLists source;
    source.SetSQL(queries::checklistByKey(key));
    RecordsetPtr rs;
    if (!source.GetDataKEY(rs)) return false;
    if (rs->EOF_()) {
        unlink();
        return false;
    }
    const std::string name = rs->Fields("ckName").value().toText();
    state_.utilCheckListExists = true;
    lblCk_.setCaption(captionLead + name);
    state_.utilChecklistName = name;
    spellCK_.setText(rs->Fields("ckContent").value().toText());
    return true;
}

void ChecklistLink::setCKEditMode(int16_t mode) {
    trap(module(), "setCKEditMode", [&] {
        state_.CheckListMode = mode;
        state_.CheckListChanged = false;
        if (mode == 0) {
            showTools(false);
            if (!options_.noChecklistText.empty()) spellCK_.setText(options_.noChecklistText);
        } else if (mode == 1 || mode == 2) {
            showTools(true);
        }
    });
}

// The Task Appointment dialog has only some of these tools.
void ChecklistLink::showTools(bool linked) {
    for (const char* key : {"PICK", "NEW", "S1"})
        if (Tool* t = smtCKActions_.find(key)) t->setVisible(true);
    for (const char* key : {"S2", "EDIT"})
        if (Tool* t = smtCKActions_.find(key)) t->setVisible(linked);
}

}  // namespace qv
