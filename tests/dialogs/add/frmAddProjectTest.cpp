#include <memory>
#include <string>
#include <vector>

#include "dialogs/add/frmAddProject.h"
#include "session/globals/SessionGlobals.h"
#include "support/TestEnv.h"
#include "toolkit/DateBox.h"
#include "toolkit/Ui.h"
#include "values/settings/DateFormats.h"

namespace qv {
namespace {

class AddProjectTest : public TestEnv {
protected:
    void SetUp() override {
        TestEnv::SetUp();
        LoadDateFormatSettings();
        dlg = std::make_shared<frmAddProject>();
        dlg->load();
        dlg->ProjectAdded.connect([this](const std::string& name) { added.push_back(name); });
    }

    Sheet& fields() { return *dlg->sheet("smtProject"); }
    Sheet& actions() { return *dlg->sheet("smtAction"); }
    DateBox& date() { return *dlg->dateBox("cboDate"); }
    std::string text(const char* key) { return fields().tool(key).text(); }
    void type(const char* key, const std::string& value) { fields().userEdit(fields().tool(key), value); }
    void fill(const std::string& name, const std::string& summary) {
        type("txName", name);
        type("txSummary", summary);
    }
    // validateNew's verdict and the message it showed, if any.
    std::string refusal(const std::string& name, const std::string& summary) {
        fill(name, summary);
        scriptedUi().clearMessages();
        scriptedUi().queueAnswer(vbOK);
        const bool ok = dlg->validateNew();
        if (ok) return "passed";
        return scriptedUi().messages().empty() ? "silent" : scriptedUi().lastMessage().text;
    }
    void clickCreate() {
        scriptedUi().queueAnswer(vbOK);
        actions().click(actions().tool("OK"));
    }

    std::shared_ptr<frmAddProject> dlg;
    std::vector<std::string> added;
};

TEST_F(AddProjectTest, ValidationMessagesComeInOrderWithTheDocumentedLimits) {
    exec("INSERT INTO PROJECTS (prjGUIDID, prjProject) VALUES ('K1', 'Work'), ('K2', 'Home ')");
    EXPECT_EQ(refusal("", ""), "Enter a name for this Project.");
    EXPECT_EQ(scriptedUi().lastMessage().style, vbOKOnly + vbInformation);
    EXPECT_EQ(scriptedUi().lastMessage().title, kProgramTitle);
    EXPECT_EQ(refusal("Plan", ""), "Missing Project Summary.");
    EXPECT_EQ(refusal(std::string(102, 'n'), std::string(102, 's')), "The new Project name is too long.");
    EXPECT_EQ(refusal(std::string(101, 'n'), std::string(102, 's')), "The Summary is too long.");
    EXPECT_EQ(refusal(std::string(101, 'n'), std::string(101, 's')), "passed");
    // Lengths count characters: 101 two-byte letters still pass.
    std::string accented;
    for (int i = 0; i < 101; ++i) accented += "\xC3\xA9";
    EXPECT_EQ(refusal(accented, accented), "passed");
    // The length test sees the untrimmed text.
    EXPECT_EQ(refusal(std::string(100, 'n') + "  ", "s"), "The new Project name is too long.");
    // Case-blind against the stored name, and only the new name is trimmed.
    EXPECT_EQ(refusal("work", "s"), "You already have a Project with that name.");
    EXPECT_EQ(refusal("  WORK ", "s"), "You already have a Project with that name.");
    EXPECT_EQ(refusal("Home", "s"), "passed");
    EXPECT_EQ(refusal("   ", "s"), "passed");
    EXPECT_EQ(readInt("SELECT COUNT(*) FROM PROJECTS"), 2);
    EXPECT_TRUE(reporter().faults().empty());
}

TEST_F(AddProjectTest, CreateToolWritesTheRowAndClearsTheWholeForm) {
    fill("  Garden  ", " Beds and paths ");
    clickCreate();
    EXPECT_EQ(scriptedUi().lastMessage().text, "Project \"  Garden  \" created.");
    ASSERT_EQ(added, std::vector<std::string>{"  Garden  "});
    EXPECT_EQ(readOne("SELECT prjSummary FROM PROJECTS WHERE prjProject = 'Garden'"), "Beds and paths");
    EXPECT_EQ(readInt("SELECT StatusLong FROM PROJECTS"), 4);
    EXPECT_EQ(readOne("SELECT prjGUIDID FROM PROJECTS").size(), 36u);
    // The untouched date field still holds today's date, and writes it.
    EXPECT_EQ(readOne("SELECT prjDeadline FROM PROJECTS").substr(0, 10), "2024-01-15");
    EXPECT_EQ(text("txName"), "");
    EXPECT_EQ(text("txSummary"), "");
    EXPECT_EQ(date().value(), 45306.0);

    // A cleared date writes no deadline, and the field comes back at the fixed serial.
    date().userClear();
    fill("Shed", "Roof");
    clickCreate();
    EXPECT_EQ(readOne("SELECT prjDeadline FROM PROJECTS WHERE prjProject = 'Shed'"), "");
    EXPECT_EQ(date().value(), 38000.0);
    EXPECT_EQ(added.size(), 2u);

    // A refused name writes nothing and raises nothing.
    fill("garden", "again");
    clickCreate();
    EXPECT_EQ(scriptedUi().lastMessage().text, "You already have a Project with that name.");
    EXPECT_EQ(readInt("SELECT COUNT(*) FROM PROJECTS"), 2);
    EXPECT_EQ(added.size(), 2u);
    EXPECT_TRUE(reporter().faults().empty());
}

TEST_F(AddProjectTest, EnterKeyClearsOnlyTheNameAndKeepsSummaryAndDate) {
    date().userSetValue(45400.0);
    fill("Taxes", "Yearly return");
    scriptedUi().queueAnswer(vbOK);
    dlg->keyDown(vbKeyReturn);
    EXPECT_EQ(scriptedUi().lastMessage().text, "Project \"Taxes\" created.");
    EXPECT_EQ(added, std::vector<std::string>{"Taxes"});
    EXPECT_EQ(text("txName"), "");
    EXPECT_EQ(text("txSummary"), "Yearly return");
    EXPECT_EQ(date().value(), 45400.0);
    EXPECT_EQ(readOne("SELECT prjDeadline FROM PROJECTS").substr(0, 10), "2024-04-18");
    // Enter on an empty name is refused like the tool.
    scriptedUi().queueAnswer(vbOK);
    dlg->keyDown(vbKeyReturn);
    EXPECT_EQ(scriptedUi().lastMessage().text, "Enter a name for this Project.");
    EXPECT_EQ(added.size(), 1u);
    EXPECT_TRUE(reporter().faults().empty());
}

TEST_F(AddProjectTest, CloseAsksOnlyWhenANameIsTypedAndEscapeNeverAsks) {
    auto& ui = scriptedUi();
    ui.queueAction([&] {
        type("txName", "Half typed");
        actions().click(actions().tool("CANCEL"));
    });
    ui.queueAnswer(vbNo);
    ui.queueAction([&] {
        EXPECT_TRUE(dlg->visible());
        actions().click(actions().tool("CANCEL"));
    });
    ui.queueAnswer(vbYes);
    dlg->showModal();
    ASSERT_EQ(ui.messages().size(), 2u);
    EXPECT_EQ(ui.messages()[0].text, "Cancel creating this new Project?");
    EXPECT_EQ(ui.messages()[0].style, vbYesNo);
    EXPECT_FALSE(dlg->loaded());

    // Cancel with only a summary typed, and Escape with a name, close unasked.
    ui.clearMessages();
    for (const bool escape : {false, true}) {
        SCOPED_TRACE(escape ? "Escape" : "Cancel");
        auto fresh = std::make_shared<frmAddProject>();
        ui.queueAction([&] {
            Sheet& s = *fresh->sheet("smtProject");
            s.userEdit(s.tool(escape ? "txName" : "txSummary"), "Typed");
            if (escape) return fresh->keyDown(vbKeyEscape);
            fresh->sheet("smtAction")->click(fresh->sheet("smtAction")->tool("CANCEL"));
        });
        fresh->showModal();
        EXPECT_FALSE(fresh->loaded());
    }
    EXPECT_TRUE(ui.messages().empty());
    EXPECT_TRUE(reporter().faults().empty());
}

TEST_F(AddProjectTest, StoreFaultTakesTheErrorPathAndRaisesGotErrExitNow) {
    int exits = 0;
    dlg->GotErrExitNow.connect([&] { ++exits; });
    exec("DROP TABLE PROJECTS");
    fill("Lost", "Store gone");
    EXPECT_FALSE(dlg->validateNew());
    EXPECT_FALSE(dlg->createNewProject());
    EXPECT_GE(reporter().faults().size(), 2u);
    EXPECT_GE(exits, 1);
    EXPECT_TRUE(added.empty());
    EXPECT_TRUE(scriptedUi().messages().empty());
}

}  // namespace
}  // namespace qv
