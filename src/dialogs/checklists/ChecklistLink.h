#pragma once
// The checklist of a task, as the New Task, Existing Task and Task
// Appointment dialogs link it: the smtCKActions tools, the picker, the
// editor, and what the dialog shows in lblCk and spellCK. The dialog owns
// the controls and the state; declare the link after them.

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>

#include "toolkit/Event.h"

namespace qv {

class Form;
class Label;
class Sheet;
class TextEditor;
class Tool;
class frmCkPicker;
class frmChecklistEditor;

struct ChecklistState {
    bool utilCheckListExists = false;
    std::string utilChecklistKey;
    std::string utilChecklistName;
    std::string utilNewChecklistNewGUID;
    int32_t CheckListMode = 0;      // the mode last given to setCKEditMode
    bool CheckListChanged = false;  // cleared by setCKEditMode, set by nothing
};

// Where the three dialogs differ.
struct ChecklistLinkOptions {
    // Only the Existing Task dialog: its actions, whose "UPDATE" a pick enables.
    Sheet* enableUpdateOnPick = nullptr;
    // Only the New Task dialog: what its editor shows with no checklist.
    std::string noChecklistText;
};

class ChecklistLink {
public:
    using Options = ChecklistLinkOptions;

    // Connects itself to smtCKActions' Click.
    ChecklistLink(Form& owner, Sheet& smtCKActions, TextEditor& spellCK, Label& lblCk, ChecklistState& state,
                  Options options = {});
    ~ChecklistLink();
    ChecklistLink(const ChecklistLink&) = delete;
    ChecklistLink& operator=(const ChecklistLink&) = delete;

    // The tools of smtCKActions as a task dialog's template has them.
    static void buildTools(Sheet& smtCKActions);

    void smtCKActions_Click(Tool& t);
    void ckPicker_CKPicked(const std::string& key);
    void ckPicker_Cancel();
    void ckFrm_returnNewCKGuid(const std::string& key);
    void ckFrm_returnUpdatedCKGuid(const std::string& key);
    void ckFrm_GotErrExitNow();
    // 0: no checklist; 1 (and 2, a catalog item's) a checklist is linked.
    void setCKEditMode(int16_t mode);

    // The picker and the editor, while they are open.
    [[nodiscard]] frmCkPicker* ckPicker() const { return ckPicker_.get(); }
    [[nodiscard]] frmChecklistEditor* ckFrm() const { return ckFrm_.get(); }

    Event<> GotErrExitNow;

private:
    [[nodiscard]] const char* module() const;
    void openPicker();
    void closePicker();
    void openEditor(const std::string& key);
    void pick(const std::string& key);
    void unlink();
    // Reads the checklist into the display; false, and unlinked, if it is gone.
    bool show(const std::string& key, const std::string& captionLead);
    void showTools(bool linked);

    Form& owner_;
    Sheet& smtCKActions_;
    TextEditor& spellCK_;
    Label& lblCk_;
    ChecklistState& state_;
    Options options_;
    std::size_t clickId_ = 0;
    std::shared_ptr<frmCkPicker> ckPicker_;
    std::shared_ptr<frmChecklistEditor> ckFrm_;
};

}  // namespace qv
