#include "dialogs/checklists/frmCkPicker.h"

#include "store/ErrorPath.h"
#include "store/StoreQueries.h"
#include "store/clsCheckLists.h"
#include "toolkit/Translate.h"

namespace qv {

namespace {
constexpr const char* kModule = "frmCkPicker";
}  // namespace

frmCkPicker::frmCkPicker() : Form(kModule) {
    smtAction.add(ttButton, tr("OK"), tr("OK")).setEnabled(false);
    smtAction.add(ttButton, "CANCEL", tr("Cancel"));
    txDesc.setReadOnly(true);
    addControl("smtList", smtList);
    addControl("smtAction", smtAction);
    addControl("txDesc", txDesc);
    smtList.Click.connect([this](Tool& t) { smtList_Click(t); });
    smtList.DblClick.connect([this](Tool&) { trap(kModule, "smtList_DblClick", [&] { pickStored(); }); });
    smtAction.Click.connect([this](Tool& t) { smtAction_Click(t); });
}

bool frmCkPicker::LoadPicker() {
    return trap(kModule, "LoadPicker", [&] {
        smtList.removeAll();
        smtList.add(ttOption, "-NEW-", tr("New Checklist"));
        smtList.add(ttOption, "-NONE-", tr("No Checklist"));
        smtList.add(ttHeading, {}, tr("Checklists"));
        clsCheckLists source;
        source.SetSQL(queries::checklistPickerList());
        RecordsetPtr rs;
        if (!source.GetDataKEY(rs)) return false;
        for (; !rs->EOF_(); rs->MoveNext()) {
            Tool& row = smtList.add(ttOption, rs->Fields("ckGUIDID").value().toText(),
                                    rs->Fields("ckName").value().toText());
            row.setTip(rs->Fields("ckDesc").value().toText());
        }
        return true;
    });
}

// The special rows have no checklist to preview.
void frmCkPicker::smtList_Click(Tool& t) {
    trap(kModule, "smtList_Click", [&] {
        if (t.type() != ttOption) return;
        PickedKey = t.key();
        const bool special = PickedKey == "-NEW-" || PickedKey == "-NONE-";
        txDesc.setText(special ? std::string() : t.tip());
        smtAction.tool("OK").setEnabled(true);
    });
}

void frmCkPicker::smtAction_Click(Tool& t) {
    trap(kModule, "smtAction_Click", [&] {
        if (t.key() == "OK")
            pickStored();
        else if (t.key() == "CANCEL")
            Cancel();
    });
}

void frmCkPicker::Form_KeyDown(int32_t keyCode, int32_t /*shift*/) {
    trap(kModule, "Form_KeyDown", [&] {
        if (keyCode == vbKeyReturn) pickStored();
    });
}

void frmCkPicker::pickStored() {
    if (!PickedKey.empty()) CKPicked(PickedKey);
}

}  // namespace qv
