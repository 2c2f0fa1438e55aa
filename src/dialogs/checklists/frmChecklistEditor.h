#pragma once
// A simple editor of one CHECKLISTS row: its name, description and body.
// It tells its owner the key of what it saved.

#include <array>
#include <cstdint>
#include <string>

#include "toolkit/ReporterRelay.h"
#include "toolkit/Event.h"
#include "toolkit/Form.h"
#include "toolkit/Sheet.h"
#include "toolkit/TextEditor.h"

namespace qv {

class frmChecklistEditor : public Form {
public:
    // The key that asks for a new checklist (lower case, unlike the picker's row).
    static constexpr const char* kNewKey = "-new-";

    frmChecklistEditor();

    // Loads the checklist of key, or a blank one for "-new-", and shows it
    // modally over owner; returns when the editor has closed.
    bool Setup(const std::string& key, const std::array<std::string, 6>& UStuff, Form* owner);

    Event<const std::string&> returnNewCKGuid;
    Event<const std::string&> returnUpdatedCKGuid;
    Event<> GotErrExitNow;

protected:
    void Form_KeyDown(int32_t keyCode, int32_t shift) override;

private:
    void loadChecklist();
    void smtAction_Click(Tool& t);
    bool save();
    [[nodiscard]] bool isNew() const { return key_ == kNewKey; }
    [[nodiscard]] Tool& field(const char* key) const { return smtChecklist.tool(key); }

    Sheet smtChecklist{"smtChecklist"};
    Sheet smtAction{"smtAction"};
    TextEditor spellContent{"spellContent"};
    std::string key_;
    std::array<std::string, 6> UStuff_;
    ReporterRelay relay_{GotErrExitNow};
};

}  // namespace qv
