// Opening a stored task in the Existing Task dialog: every field in its tool,
// the deadline, the checklist, the keyword ticks and the modes' captions.

#include "dialogs/DialogExpect.h"
#include "dialogs/existingtask/ExistingTaskFixture.h"
#include "session/globals/SessionGlobals.h"
#include "toolkit/Ui.h"
#include "values/types/DateSerial.h"

namespace qv {

using ExistingTaskLoad = Seeded<ExistingTaskFixture>;

TEST_F(ExistingTaskLoad, ModeOneShowsEveryFieldOfTheRow) {
    addTask(", tskDeadline", ", '2030-06-01 17:00:00.000'");
    linkKeyword(kKeyBlue);
    exec("UPDATE Settings SET SetSettingValue='Done' WHERE SetSettingName='STATUS1'");
    look([this] {
        EXPECT_EQ(eform().caption(), "Quorvel - Version 1.14 - Edit Task");
        EXPECT_EQ(eform().editor("spellTask")->text(), "Paint the fence");
        EXPECT_EQ(eform().editor("SpellNotes")->text(), "Two coats");
        expectTools(sheet("smtABOUT"), &Tool::text,
                    {{"STATUS", "In Progress"}, {"PROJECT", "Alpha"}, {"IMP", g().ImportanceList[2]},
                     {"DIFF", g().DifficultyList[3]}, {"ISCURRENT", "Yes"}, {"NEEDED", "1:30"},
                     {"SPENT", "0:45"}, {"SCHEDULED", "0:30"}, {"DEADTIME", "5:00:00 PM"}});
        expectTools(sheet("smtABOUT"), &Tool::tag,
                    {{"STATUS", "1"}, {"PROJECT", kAlpha}, {"IMP", "2"}, {"ISCURRENT", "TRUE"}});
        EXPECT_FALSE(tool("smtABOUT", "STATUS").bold());
        EXPECT_EQ(tool("smtTimes", "TIMESPENT").text(), "0:45");
        EXPECT_EQ(tool("smtReady", "POINTS").caption(), "12");
        EXPECT_EQ(tool("smtABOUT", "DEADLINE").foreColor(), 0) << "a future deadline is not red";
        EXPECT_FALSE(tool("smtABOUT", "DATEDONE").visible());
        EXPECT_TRUE(tool("smtKeywords", kKeyBlue).checked());
        EXPECT_FALSE(tool("smtKeywords", kKeyRed).checked());
        EXPECT_FALSE(tool("smtActions", "UPDATE").enabled());
        EXPECT_EQ(tool("smtActions", "UPDATE").caption(), "&Update");
        EXPECT_EQ(tool("smtABOUT", "PROJECT").items().back()->caption(), "New Project");
        EXPECT_TRUE(tool("smtABOUT", "PROJECT").item(std::string("PRJ-") + kBeta) != nullptr);
        EXPECT_FALSE(g().SettingUp);
    });
    EXPECT_EQ(events_.front(), "LoadingTask");
    EXPECT_TRUE(reporter().faults().empty());
}

TEST_F(ExistingTaskLoad, CompletedPastDeadlineMidnightAndOddStatuses) {
    addTask(", tskDeadline", ", '2020-06-01 00:00:00.000'");
    exec("UPDATE TASKS SET tskStatus=0");
    look([this] {
        EXPECT_EQ(tool("smtABOUT", "STATUS").text(), "Completed");
        EXPECT_TRUE(tool("smtABOUT", "STATUS").bold());
        EXPECT_TRUE(tool("smtReady", "DONE").checked());
        EXPECT_FALSE(tool("smtABOUT", "DATEDONE").visible()) << "no Date Done row, even when completed";
        EXPECT_EQ(tool("smtABOUT", "DEADTIME").text(), "") << "a midnight deadline has no time";
        EXPECT_EQ(tool("smtABOUT", "DEADLINE").foreColor(), 255);
        EXPECT_TRUE(tool("smtABOUT", "DEADTIME").bold());
        EXPECT_FALSE(tool("smtActions", "UPDATE").enabled()) << "the load's Done tick enables nothing";
    });

    // A status beyond the list leaves the tool empty and fails nothing.
    exec("UPDATE TASKS SET tskStatus=42");
    look([this] { EXPECT_EQ(tool("smtABOUT", "STATUS").text(), ""); });
    EXPECT_TRUE(reporter().faults().empty());
}

TEST_F(ExistingTaskLoad, ChecklistFoundOrLostAndAMissingRow) {
    const std::string longName(90, 'n');
    exec("INSERT INTO CHECKLISTS (ckGUIDID, ckName, ckDesc, ckContent) VALUES ('" + std::string(kChecklist) + "', '" +
         longName + "', 'd', 'step one')");
    addTask(", tskTCheckListGUID, tskHasChecklist", ", '" + std::string(kChecklist) + "', 1");
    look([this, longName] {
        EXPECT_EQ(eform().label("lblCk")->caption(), " Checklist: " + longName.substr(0, 80) + "...");
        EXPECT_EQ(eform().editor("spellCK")->text(), "step one");
        EXPECT_TRUE(tool("smtCKActions", "EDIT").visible());
    });
    EXPECT_TRUE(scriptedUi().messages().empty());

    exec("DELETE FROM CHECKLISTS");
    scriptedUi().queueAnswer(vbOK);
    look([this] { EXPECT_FALSE(eform().fields().checklist.utilCheckListExists); });
    ASSERT_EQ(scriptedUi().messages().size(), 1u);
    EXPECT_EQ(scriptedUi().lastMessage().text, "The checklist formerly associated with this task could not be found.");
    EXPECT_EQ(scriptedUi().lastMessage().style, vbInformation);

    // A key with no row takes the error path, once, and shows nothing.
    openTask(1, "00000000-0000-0000-0000-00000000dead");
    ASSERT_EQ(reporter().faults().size(), 1u);
    EXPECT_EQ(reporter().faults()[0].procedure, "SetupDetails");
    EXPECT_EQ(reporter().faults()[0].module, "frmExistingTask");
}

TEST_F(ExistingTaskLoad, ModeFiveOffersTheCatalogSaveAndTrimtoLen) {
    addTask();
    look([this] {
        EXPECT_EQ(eform().caption(), "Quorvel - Version 1.14 - Create Task Catalog Item");
        EXPECT_EQ(tool("smtActions", "UPDATE").caption(), "Save to &Task Catalog");
        EXPECT_TRUE(tool("smtActions", "UPDATE").enabled());
    }, 5);
    EXPECT_EQ(frmExistingTask::TrimtoLen("abcdef", 6), "abcdef");
    EXPECT_EQ(frmExistingTask::TrimtoLen("abcdefg", 6), "abcdef...");
    EXPECT_EQ(frmExistingTask::TrimtoLen("äöüäöüä", 6), "äöüäöü...");
}

}  // namespace qv
