// Keywords and the project of a stored task: the links rewritten on save,
// Add Keyword losing unsaved ticks, Add Project from the drop-down, and
// the lagging keyword count.

#include "dialogs/add/frmAddKeyword.h"
#include "dialogs/add/frmAddProject.h"
#include "dialogs/existingtask/ExistingTaskFixture.h"
#include "dialogs/existingtask/ExistingTaskKeywords.h"
#include "session/globals/SessionGlobals.h"
#include "toolkit/Ui.h"

namespace qv {

namespace {
class ExistingTaskKeywordsTest : public ExistingTaskFixture {
protected:
    const std::string links = "SELECT ktKEYGUID FROM TaskKeywords WHERE ktTASKGUID='" + std::string(kTask) + "'";
};
}  // namespace

TEST_F(ExistingTaskKeywordsTest, LinksAreRewrittenWholeOnUpdate) {
    seed();
    addTask();
    linkKeyword(kKeyBlue);
    linkKeyword(kKeyBlue);  // a doubled link goes with the rewrite
    eclick("smtKeywords", kKeyRed);
    then([this] { EXPECT_EQ(eform().fields().KeywordCount, 2) << "counted after the check"; });
    eclick("smtKeywords", kKeyBlue);
    edesc("Paint the barn");
    then([this] {
        EXPECT_TRUE(eform().fields().record().HasKeywords);
        EXPECT_EQ(eform().fields().KeywordCount, 1);
    });
    eclick("smtActions", "UPDATE");
    openTask();
    EXPECT_EQ(readInt("SELECT COUNT(*) FROM (" + links + ") AS links"), 1);
    EXPECT_EQ(readOne(links), kKeyRed);
    EXPECT_EQ(readOne("SELECT ktTask FROM TaskKeywords"), "Paint the barn");
    EXPECT_EQ(readOne("SELECT ktKeyword FROM TaskKeywords"), "Red");

    // No ticks, no links.
    eclick("smtKeywords", kKeyRed);
    eclick("smtActions", "UPDATE");
    openTask();
    EXPECT_EQ(readInt("SELECT COUNT(*) FROM TaskKeywords"), 0);
}

TEST_F(ExistingTaskKeywordsTest, FailedLinksLeaveTheRowSavedAndTheOldLinksWhole) {
    seed();
    addTask();
    linkKeyword(kKeyBlue);
    refuseWrites("TaskKeywords", "INSERT");
    eclick("smtKeywords", kKeyRed);
    edesc("Paint the barn");
    eclick("smtActions", "UPDATE");
    openTask();
    ASSERT_EQ(reporter().faults().size(), 1u);
    EXPECT_EQ(reporter().faults()[0].procedure, "UpdateTask");
    EXPECT_EQ(readOne("SELECT tskDesc FROM TASKS"), "Paint the barn");
    EXPECT_EQ(readOne(links), kKeyBlue);
    EXPECT_EQ(readInt("SELECT COUNT(*) FROM TaskKeywords"), 1);
    EXPECT_EQ(count("TaskUpdated"), 0) << "the host hears nothing of a failed save";
}

TEST_F(ExistingTaskKeywordsTest, AddKeywordRebuildsTheSheetFromTheStoredLinks) {
    seed();
    addTask();
    linkKeyword(kKeyBlue);
    eclick("smtKeywords", kKeyRed);
    eclick("smtKeywords", "kNEWKEYWORD");
    then([this] {
        auto* add = eform().keywords().adders().fNewKeyword.get();
        ASSERT_NE(add, nullptr);
        scriptedUi().queueAnswer(vbOK);
        add->sheet("smtKeywords")->find("CATEGORY")->setText("Colour");
        add->sheet("smtKeywords")->find("KEYWORD")->setText("Green");
    });
    then([this] {
        Form* add = eform().keywords().adders().fNewKeyword.get();
        add->sheet("smtAction")->click(*add->sheet("smtAction")->find("ADD"));
    });
    then([this] {
        if (auto add = eform().keywords().adders().fNewKeyword) add->hide();
    });
    then([this] {
        EXPECT_FALSE(etool("smtKeywords", kKeyRed).checked()) << "an unsaved tick is lost";
        EXPECT_TRUE(etool("smtKeywords", kKeyBlue).checked());
        bool green = false;
        for (const auto& t : esheet("smtKeywords").tools()) green = green || t->caption() == "Green";
        EXPECT_TRUE(green);
        eform().hide();
    });
    openTask();
    EXPECT_EQ(count("KeywordAdded"), 1);
}

TEST_F(ExistingTaskKeywordsTest, NewProjectFromTheListIsChosenAndSaved) {
    seed();
    addTask();
    choose("PROJECT", "New Project");
    then([this] {
        auto* add = eform().keywords().adders().fNewProject.get();
        ASSERT_NE(add, nullptr);
        scriptedUi().queueAnswer(vbOK);
        add->sheet("smtProject")->find("txName")->setText("Gamma");
        add->sheet("smtProject")->find("txSummary")->setText("Third");
    });
    then([this] {
        Form* add = eform().keywords().adders().fNewProject.get();
        add->sheet("smtAction")->click(*add->sheet("smtAction")->find("OK"));
    });
    then([this] {
        if (auto add = eform().keywords().adders().fNewProject) add->hide();
    });
    then([this] {
        EXPECT_EQ(etool("smtABOUT", "PROJECT").text(), "Gamma");
        EXPECT_EQ(etool("smtABOUT", "PROJECT").tag(), kAlpha) << "the tag stays; the key comes from the entry";
        EXPECT_TRUE(eform().fields().IsDirty);
    });
    eclick("smtActions", "UPDATE");
    openTask();
    EXPECT_EQ(count("ProjectAdded"), 1);
    const std::string gamma = readOne("SELECT prjGUIDID FROM PROJECTS WHERE prjProject='Gamma'");
    EXPECT_EQ(readOne("SELECT tskProject FROM TASKS"), "Gamma");
    EXPECT_EQ(readOne("SELECT tskProjectKey FROM TASKS"), gamma);
}

TEST_F(ExistingTaskKeywordsTest, MopProjectIsDisabledAndNoProjectStillSaves) {
    seed();
    addTask();
    g().MOP = kBeta;
    task_.SetMOP(kBeta);
    then([this] {
        EXPECT_FALSE(etool("smtABOUT", "PROJECT").item(std::string("PRJ-") + kBeta)->enabled());
        etool("smtABOUT", "PROJECT").setText("");
        eform().editor("spellTask")->userEdit("Paint the shed");
    });
    eclick("smtActions", "UPDATE");
    openTask();
    EXPECT_EQ(readOne("SELECT tskProject FROM TASKS"), "");
    EXPECT_EQ(readOne("SELECT tskProjectKey FROM TASKS"), "NOPROJECT");
}

}  // namespace qv
