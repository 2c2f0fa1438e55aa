#include <memory>
#include <string>
#include <vector>

#include "dialogs/checklists/ChecklistLink.h"
#include "dialogs/checklists/frmChecklistEditor.h"
#include "dialogs/checklists/frmCkPicker.h"
#include "session/globals/SessionGlobals.h"
#include "support/TestEnv.h"
#include "toolkit/Form.h"
#include "toolkit/Label.h"
#include "toolkit/Sheet.h"
#include "toolkit/TextEditor.h"
#include "toolkit/Ui.h"

namespace qv {
namespace {

// A task dialog as far as its checklist goes.
class OwnerForm : public Form {
public:
    explicit OwnerForm(bool existingTask, std::string noChecklistText) : Form("frmExistingTask") {
        for (const char* key : {"NEW", "S1", "PICK", "S2", "EDIT"}) smtCKActions.add(ttButton, key, key);
        smtActions.add(ttButton, "UPDATE", "&Update Task").setEnabled(false);
        ChecklistLink::Options options;
        if (existingTask) options.enableUpdateOnPick = &smtActions;
        options.noChecklistText = std::move(noChecklistText);
        link = std::make_unique<ChecklistLink>(*this, smtCKActions, spellCK, lblCk, state, options);
        link->setCKEditMode(0);
    }
    void click(const char* key) { smtCKActions.click(smtCKActions.tool(key)); }
    bool shows(const char* key) const { return smtCKActions.tool(key).visible(); }
    // The link as the dialog holds and shows it: exists|key|name|mode|caption|text.
    std::string linked() const {
        return std::to_string(state.utilCheckListExists) + "|" + state.utilChecklistKey + "|" +
               state.utilChecklistName + "|" + std::to_string(state.CheckListMode) + "|" + lblCk.caption() +
               "|" + spellCK.text();
    }

    Sheet smtCKActions{"smtCKActions"};
    Sheet smtActions{"smtActions"};
    TextEditor spellCK{"spellCK"};
    Label lblCk{"lblCk", "Checklist"};
    ChecklistState state;
    std::unique_ptr<ChecklistLink> link;
};

class ChecklistLinkTest : public TestEnv {
protected:
    void SetUp() override {
        TestEnv::SetUp();
        exec(
            "INSERT INTO CHECKLISTS VALUES ('K-BETA', 'Beta', 'Second list', 'b1\nb2'), "
            "('K-ALPHA', 'Alpha', 'First list', 'a1\na2')");
    }
    std::shared_ptr<OwnerForm> owner(bool existingTask = false, std::string noChecklistText = {}) {
        auto f = std::make_shared<OwnerForm>(existingTask, std::move(noChecklistText));
        f->load();
        return f;
    }
    // Queues a click on a picker row and then the given way of picking it.
    void pickRow(OwnerForm& f, const std::string& key) {
        scriptedUi().queueAction([&f, key] {
            Sheet& list = *f.link->ckPicker()->sheet("smtList");
            list.click(list.tool(key));
            Sheet& act = *f.link->ckPicker()->sheet("smtAction");
            act.click(act.tool("OK"));
        });
    }
    // Queues typing into the open editor and saving.
    void saveInEditor(OwnerForm& f, const std::string& name, const std::string& content) {
        scriptedUi().queueAction([&f, name, content] {
            frmChecklistEditor& ed = *f.link->ckFrm();
            Sheet& s = *ed.sheet("smtChecklist");
            s.userEdit(s.tool("NAME"), name);
            s.userEdit(s.tool("DESC"), "made here");
            ed.editor("spellContent")->userEdit(content);
            ed.sheet("smtAction")->click(ed.sheet("smtAction")->tool("SAVE"));
        });
    }
};

TEST_F(ChecklistLinkTest, PickerListsSpecialRowsHeadingAndChecklistsByName) {
    auto picker = std::make_shared<frmCkPicker>();
    picker->load();
    ASSERT_TRUE(picker->LoadPicker());
    Sheet& list = *picker->sheet("smtList");
    std::vector<std::string> rows;
    for (const auto& t : list.tools()) rows.push_back(t->key() + " " + t->caption());
    EXPECT_EQ(rows, (std::vector<std::string>{"-NEW- New Checklist", "-NONE- No Checklist",
                                              list.at(3).key() + " Checklists", "K-ALPHA Alpha", "K-BETA Beta"}));
    EXPECT_EQ(list.at(3).type(), ttHeading);
    EXPECT_EQ(list.at(4).tip(), "First list");

    std::vector<std::string> picked;
    int cancels = 0;
    picker->CKPicked.connect([&](const std::string& k) { picked.push_back(k); });
    picker->Cancel.connect([&] { ++cancels; });
    Sheet& act = *picker->sheet("smtAction");
    // Nothing clicked: Enter, OK and a double click on the heading raise nothing.
    EXPECT_FALSE(act.tool("OK").enabled());
    picker->keyDown(vbKeyReturn);
    list.click(list.at(3));
    list.doubleClick(list.at(3));
    EXPECT_TRUE(picked.empty());
    EXPECT_FALSE(act.tool("OK").enabled());

    list.click(list.at(5));
    EXPECT_EQ(picker->editor("txDesc")->text(), "Second list");
    EXPECT_TRUE(act.tool("OK").enabled());
    list.click(list.at(1));
    EXPECT_EQ(picker->editor("txDesc")->text(), "");
    picker->keyDown(vbKeyReturn);
    list.click(list.at(4));
    list.doubleClick(list.at(4));
    act.click(act.tool("CANCEL"));
    EXPECT_EQ(picked, (std::vector<std::string>{"-NEW-", "K-ALPHA"}));
    EXPECT_EQ(cancels, 1);
}

TEST_F(ChecklistLinkTest, PickedChecklistIsLinkedAndNoneUnlinksIt) {
    auto f = owner();
    EXPECT_FALSE(f->shows("EDIT") || f->shows("S2"));
    pickRow(*f, "K-ALPHA");
    f->click("PICK");
    EXPECT_EQ(f->link->ckPicker(), nullptr);
    EXPECT_EQ(f->linked(), "1|K-ALPHA|Alpha|1| Checklist: Alpha|a1\na2");
    EXPECT_TRUE(f->shows("EDIT") && f->shows("S2"));
    // Only the Existing Task dialog's option enables its update action.
    EXPECT_FALSE(f->smtActions.tool("UPDATE").enabled());

    scriptedUi().queueAction([&] {
        Sheet& act = *f->link->ckPicker()->sheet("smtAction");
        act.click(act.tool("CANCEL"));
    });
    f->click("PICK");
    EXPECT_EQ(f->state.utilChecklistKey, "K-ALPHA");
    EXPECT_EQ(f->link->ckPicker(), nullptr);

    pickRow(*f, "-NONE-");
    f->click("PICK");
    EXPECT_EQ(f->linked(), "0||Alpha|0|No Checklist|") << "the name stays; nothing reads it unlinked";
    EXPECT_FALSE(f->shows("EDIT"));
    EXPECT_TRUE(f->shows("PICK"));
    EXPECT_TRUE(reporter().faults().empty());
}

TEST_F(ChecklistLinkTest, DialogOptionsEnableUpdateAndFillTheEmptyEditor) {
    auto e = owner(true);
    pickRow(*e, "K-BETA");
    e->click("PICK");
    EXPECT_TRUE(e->smtActions.tool("UPDATE").enabled());

    auto n = owner(false, "(Pick a Checklist...)");
    EXPECT_EQ(n->spellCK.text(), "(Pick a Checklist...)");
    pickRow(*n, "K-BETA");
    n->click("PICK");
    EXPECT_EQ(n->spellCK.text(), "b1\nb2");
    pickRow(*n, "-NONE-");
    n->click("PICK");
    EXPECT_EQ(n->spellCK.text(), "(Pick a Checklist...)");
    // Mode 2 shows like 1; other modes move no tool.
    n->link->setCKEditMode(2);
    EXPECT_TRUE(n->shows("EDIT"));
    n->link->setCKEditMode(7);
    EXPECT_TRUE(n->shows("EDIT"));
    EXPECT_EQ(n->state.CheckListMode, 7);
}

TEST_F(ChecklistLinkTest, NewChecklistFromThePickerIsSavedAndLinked) {
    auto f = owner();
    pickRow(*f, "-NEW-");
    saveInEditor(*f, "Gamma", "g1");
    f->click("PICK");
    EXPECT_EQ(f->link->ckFrm(), nullptr);
    const std::string key = readOne("SELECT ckGUIDID FROM CHECKLISTS WHERE ckName = 'Gamma'");
    ASSERT_EQ(key.size(), 36u);
    EXPECT_EQ(readOne("SELECT ckContent FROM CHECKLISTS WHERE ckGUIDID = '" + key + "'"), "g1");
    EXPECT_EQ(f->state.utilNewChecklistNewGUID, key);
    EXPECT_EQ(f->linked(), "1|" + key + "|Gamma|1|Checklist: Gamma|g1");
    EXPECT_TRUE(f->shows("EDIT"));

    // Editing it rewrites the row and refreshes the display, key unchanged.
    scriptedUi().queueAction([&] {
        frmChecklistEditor& ed = *f->link->ckFrm();
        EXPECT_EQ(ed.sheet("smtChecklist")->tool("NAME").text(), "Gamma");
        EXPECT_EQ(ed.editor("spellContent")->text(), "g1");
    });
    saveInEditor(*f, "Gamma 2", "g1\ng2");
    f->click("EDIT");
    EXPECT_EQ(readInt("SELECT COUNT(*) FROM CHECKLISTS"), 3);
    EXPECT_EQ(f->linked(), "1|" + key + "|Gamma 2|1|Checklist: Gamma 2|g1\ng2");
    EXPECT_TRUE(reporter().faults().empty());
}

TEST_F(ChecklistLinkTest, EditorRefusesAnEmptyNameAndCancelSavesNothing) {
    auto f = owner();
    scriptedUi().queueAction([&] {
        frmChecklistEditor& ed = *f->link->ckFrm();
        ed.sheet("smtAction")->click(ed.sheet("smtAction")->tool("SAVE"));
        EXPECT_TRUE(ed.visible());
        ed.sheet("smtAction")->click(ed.sheet("smtAction")->tool("CANCEL"));
    });
    scriptedUi().queueAnswer(vbOK);
    f->click("NEW");
    EXPECT_EQ(scriptedUi().lastMessage().text, "Enter a name for this Checklist.");
    EXPECT_EQ(readInt("SELECT COUNT(*) FROM CHECKLISTS"), 2);
    EXPECT_FALSE(f->state.utilCheckListExists);
}

TEST_F(ChecklistLinkTest, NothingOpensWhileSettingUp) {
    auto f = owner();
    g().SettingUp = true;
    f->click("PICK");
    f->click("NEW");
    EXPECT_TRUE(scriptedUi().shown().empty());
    g().SettingUp = false;
}

}  // namespace
}  // namespace qv
