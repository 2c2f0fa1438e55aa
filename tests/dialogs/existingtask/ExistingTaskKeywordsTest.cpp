// Keywords and the project of a stored task: links rewritten on save, and
// the Add Keyword and Add Project dialogs opened from the task.

#include <algorithm>

#include "dialogs/DialogExpect.h"
#include "dialogs/add/frmAddKeyword.h"
#include "dialogs/add/frmAddProject.h"
#include "dialogs/existingtask/ExistingTaskFixture.h"
#include "dialogs/existingtask/ExistingTaskKeywords.h"
#include "session/globals/SessionGlobals.h"
#include "toolkit/Ui.h"

namespace qv {

namespace {
class ExistingTaskKeywordsTest : public Seeded<ExistingTaskFixture> {
protected:
    const std::string links = "SELECT ktKEYGUID FROM TaskKeywords WHERE ktTASKGUID='" + std::string(kTask) + "'";

    // Fills the Add dialog the click opened, presses its action and closes it.
    void useAdder(std::function<Form*()> adder, const std::string& sheetName,
                  std::vector<std::pair<std::string, std::string>> fields, const std::string& action) {
        then([this, adder, sheetName, fields] {
            Form* add = adder();
            ASSERT_NE(add, nullptr);
            scriptedUi().queueAnswer(vbOK);
            for (const auto& [key, value] : fields) add->sheet(sheetName)->find(key)->setText(value);
        });
        then([adder, action] { adder()->sheet("smtAction")->click(*adder()->sheet("smtAction")->find(action)); });
        then([adder] {
            if (Form* add = adder()) add->hide();
        });
    }
    Form* keywordAdder() { return eform().keywords().adders().fNewKeyword.get(); }
    Form* projectAdder() { return eform().keywords().adders().fNewProject.get(); }
};
}  // namespace

TEST_F(ExistingTaskKeywordsTest, LinksAreRewrittenWholeOnUpdate) {
    addTask();
    linkKeyword(kKeyBlue);
    linkKeyword(kKeyBlue);  // a doubled link goes with the rewrite
    click("smtKeywords", kKeyRed);
    then([this] { EXPECT_EQ(eform().fields().KeywordCount, 2) << "counted after the check"; });
    click("smtKeywords", kKeyBlue);
    typeDescription("Paint the barn");
    then([this] {
        EXPECT_TRUE(eform().fields().record().HasKeywords);
        EXPECT_EQ(eform().fields().KeywordCount, 1);
    });
    click("smtActions", "UPDATE");
    openTask();
    EXPECT_EQ(readInt("SELECT COUNT(*) FROM (" + links + ") AS links"), 1);
    EXPECT_EQ(readOne(links), kKeyRed);
    EXPECT_EQ(readOne("SELECT ktTask FROM TaskKeywords"), "Paint the barn");
    EXPECT_EQ(readOne("SELECT ktKeyword FROM TaskKeywords"), "Red");

    click("smtKeywords", kKeyRed);
    click("smtActions", "UPDATE");
    openTask();
    EXPECT_EQ(readInt("SELECT COUNT(*) FROM TaskKeywords"), 0);
}

TEST_F(ExistingTaskKeywordsTest, FailedLinksLeaveTheRowSavedAndTheOldLinksWhole) {
    addTask();
    linkKeyword(kKeyBlue);
    refuseWrites("TaskKeywords", "INSERT");
    click("smtKeywords", kKeyRed);
    typeDescription("Paint the barn");
    click("smtActions", "UPDATE");
    openTask();
    ASSERT_EQ(reporter().faults().size(), 1u);
    EXPECT_EQ(reporter().faults()[0].procedure, "UpdateTask");
    EXPECT_EQ(readOne("SELECT tskDesc FROM TASKS"), "Paint the barn");
    EXPECT_EQ(readOne(links), kKeyBlue);
    EXPECT_EQ(readInt("SELECT COUNT(*) FROM TaskKeywords"), 1);
    EXPECT_EQ(count("TaskUpdated"), 0) << "the host hears nothing of a failed save";
}

TEST_F(ExistingTaskKeywordsTest, AddKeywordRebuildsTheSheetFromTheStoredLinks) {
    addTask();
    linkKeyword(kKeyBlue);
    click("smtKeywords", kKeyRed);
    click("smtKeywords", "kNEWKEYWORD");
    useAdder([this] { return keywordAdder(); }, "smtKeywords", {{"CATEGORY", "Colour"}, {"KEYWORD", "Green"}},
             "ADD");
    look([this] {
        EXPECT_FALSE(tool("smtKeywords", kKeyRed).checked()) << "an unsaved tick is lost";
        EXPECT_TRUE(tool("smtKeywords", kKeyBlue).checked());
        EXPECT_EQ(std::ranges::count(captions(sheet("smtKeywords")), "Green"), 1);
    });
    EXPECT_EQ(count("KeywordAdded"), 1);
}

TEST_F(ExistingTaskKeywordsTest, NewProjectFromTheListIsChosenAndSaved) {
    addTask();
    choose("PROJECT", "New Project");
    useAdder([this] { return projectAdder(); }, "smtProject", {{"txName", "Gamma"}, {"txSummary", "Third"}}, "OK");
    then([this] {
        EXPECT_EQ(tool("smtABOUT", "PROJECT").text(), "Gamma");
        EXPECT_EQ(tool("smtABOUT", "PROJECT").tag(), kAlpha) << "the tag stays; the key comes from the entry";
        EXPECT_TRUE(eform().fields().IsDirty);
    });
    click("smtActions", "UPDATE");
    openTask();
    EXPECT_EQ(count("ProjectAdded"), 1);
    const std::string gamma = readOne("SELECT prjGUIDID FROM PROJECTS WHERE prjProject='Gamma'");
    EXPECT_EQ(readOne("SELECT tskProject FROM TASKS"), "Gamma");
    EXPECT_EQ(readOne("SELECT tskProjectKey FROM TASKS"), gamma);
}

// Add Project closed without a project leaves "New Project" chosen: the
// key stored is that entry's, behind its first four characters.
TEST_F(ExistingTaskKeywordsTest, NewProjectLeftStandingStoresTheKeyOfItsEntry) {
    addTask();
    choose("PROJECT", "New Project");
    then([this] { projectAdder()->sheet("smtAction")->click(*projectAdder()->sheet("smtAction")->find("CANCEL")); });
    then([this] {
        if (Form* add = projectAdder()) add->hide();
    });
    click("smtActions", "UPDATE");
    openTask();
    EXPECT_EQ(readOne("SELECT tskProject FROM TASKS"), "New Project");
    EXPECT_EQ(readOne("SELECT tskProjectKey FROM TASKS"), "PROJECT");
}

TEST_F(ExistingTaskKeywordsTest, MopProjectIsDisabledAndNoProjectStillSaves) {
    addTask();
    g().MOP = kBeta;
    task_.SetMOP(kBeta);
    then([this] {
        EXPECT_FALSE(tool("smtABOUT", "PROJECT").item(std::string("PRJ-") + kBeta)->enabled());
        tool("smtABOUT", "PROJECT").setText("");
        eform().editor("spellTask")->userEdit("Paint the shed");
    });
    click("smtActions", "UPDATE");
    openTask();
    EXPECT_EQ(readOne("SELECT tskProject FROM TASKS"), "");
    EXPECT_EQ(readOne("SELECT tskProjectKey FROM TASKS"), "NOPROJECT");
}

}  // namespace qv
