// Opening the New Task dialog, adding tasks and catalog items, and opening
// a task from a catalog item, all through clsTask2 on a real store.

#include <cmath>

#include "dialogs/DialogExpect.h"
#include "dialogs/newtask/NewTaskFixture.h"
#include "session/globals/SessionGlobals.h"
#include "toolkit/Ui.h"

namespace qv {

using NewTaskSave = Seeded<NewTaskFixture>;

TEST_F(NewTaskSave, ModeZeroOpensWithItsListsAndTheTimerDefaults) {
    addProject("EEEEEEEE-0000-0000-0000-000000000005", "Archived");
    addProject("FFFFFFFF-0000-0000-0000-000000000006", "archived");
    g().MOP = kBeta;
    fireTimer();
    closeHidden();
    open();

    EXPECT_EQ(form().caption(), "Quorvel - Version 1.14 - New Task");
    Sheet& proj = sheet("smtProj");
    // "Archived" gets no option; "archived" does.
    EXPECT_EQ(captions(proj), (std::vector<std::string>{"Alpha", "archived", "Beta", "", "New Project"}));
    EXPECT_TRUE(proj.at(1).checked()) << "the default project is the first";
    EXPECT_FALSE(proj.tool(kBeta).enabled()) << "the host's default project is disabled";
    EXPECT_EQ(proj.at(proj.count()).key(), "kNEWPROJECT");

    Sheet& kw = sheet("smtKeywords");
    EXPECT_EQ(kw.at(1).type(), ttHeading);
    EXPECT_EQ(captions(kw), (std::vector<std::string>{"Colour", "Blue", "Red", "", "Add Keyword"}));

    EXPECT_EQ(tool("smtOther", "STATUS").items().size(), 6u);
    EXPECT_EQ(sheet("smtTimeNeeded").at(1).key(), "CUSTOMTIME");
    EXPECT_EQ(sheet("smtTimeNeeded").count(), 1 + 5) << "one preset fewer than the labels";
    EXPECT_TRUE(sheet("smtImp").at(1).checked());
    EXPECT_TRUE(sheet("smtDiff").at(1).checked());
    EXPECT_TRUE(sheet("smtTimeNeeded").at(2).checked());
    EXPECT_EQ(tool("smtActions", "DONE").caption(), "C&ancel") << "even an untouched dialog is dirty";
    EXPECT_EQ(tool("smtReady", "DESCFLAG").tip(), "Missing Task Description.");
    EXPECT_EQ(tool("smtReady", "PROJECTFLAG").image(), "GOOD");
    EXPECT_FALSE(tool("smtActions", "QV").enabled());
    EXPECT_TRUE(tool("smtActions", "PRINT").enabled()) << "setupActions does nothing while setting up";
}

TEST_F(NewTaskSave, AddToQuorvelWritesTheRowAndKeywordsAndCarriesOver) {
    exec("INSERT INTO TASKS (tskGUIDID, tskProjectKey) VALUES ('old', '" + std::string(kBeta) + "')");
    fireTimer();
    click("smtProj", kBeta);
    click("smtImp", "IMP-2");
    click("smtKeywords", kKeyRed);
    click("smtOther", "ISCURRENT");
    then([this] { form().dateBox("ctDeadline")->setValue(45500.0); });
    then([this] { tool("smtOther", "DEADTIME").setText("14:30"); });
    then([this] { form().editor("SpellNotes")->setText("some notes"); });
    typeDescription("Write the report");
    click("smtActions", "QV");
    then([this] {
        EXPECT_TRUE(form().label("lblTaskSaved")->visible() == false);
        EXPECT_EQ(form().label("lblTaskSaved")->caption(), "Task added to Quorvel.");
    });
    typeDescription("Second report");
    click("smtActions", "QV2");
    closeHidden();
    const std::string firstGuid = "preset-not-36";
    open(0, firstGuid);

    EXPECT_EQ(count("NewTask"), 2);
    EXPECT_EQ(readInt("SELECT COUNT(*) FROM TASKS WHERE tskGUIDID <> 'old'"), 2);
    const std::string where = " FROM TASKS WHERE tskDesc='Write the report'";
    const auto first = [&](const std::string& c) { return readOne("SELECT " + c + where); };
    expectEach(first, {{"tskProject", "Beta"}, {"tskProjectKey", kBeta}, {"tskStatus", "3"}, {"tskImp", "2"},
                       {"tskDifficulty", "0"}, {"tskTimeNeeded", "15"}, {"tskCurrent", "1"},
                       {"tskHasSchedule", "0"}, {"tskNotes", "some notes"}, {"tskHasNotes", "1"},
                       {"tskDoneDate", ""}, {"tskPossPoints", std::to_string(6 + 10 + 3)},
                       {"tskCustSortQV", "2"}, {"tskCustSortCUR", "1"}, {"tskHasChecklist", "0"},
                       {"tskTaskCatGUID", ""}, {"length(tskGUIDID)", "36"}});
    EXPECT_EQ(readOne("SELECT tskDeadline" + where).substr(0, 16), "2024-07-27T14:30");
    EXPECT_EQ(readOne("SELECT tskCreatedDate" + where).substr(0, 10), "2024-01-15");
    EXPECT_EQ(readInt("SELECT tskCustSortProj" + where), 1) << "counted once, for the project of the first check";
    EXPECT_EQ(readOne("SELECT ktKeyword FROM TaskKeywords WHERE ktTask='Write the report'"), "Red");
    EXPECT_EQ(readInt("SELECT COUNT(*) FROM TaskKeywords WHERE ktKEYGUID='" + std::string(kKeyRed) +
                      "' AND ktTASKGUID IN (SELECT tskGUIDID FROM TASKS)"),
              2) << "a keyword left ticked goes with the next task too";

    // The second task: new key, same sort numbers, no deadline after the reset.
    const std::string second = " FROM TASKS WHERE tskDesc='Second report'";
    EXPECT_NE(readOne("SELECT tskGUIDID" + second), readOne("SELECT tskGUIDID" + where));
    expectEach([&](const std::string& c) { return readOne("SELECT " + c + second); },
               {{"tskCustSortQV", "2"}, {"tskCustSortProj", "1"}, {"tskDeadline", ""}, {"tskImp", "2"}});

    // What the user sees after a save.
    EXPECT_EQ(form().editor("spellTask")->text(), "");
    EXPECT_EQ(form().editor("spellCK")->text(), "(Pick a Checklist...)");
    EXPECT_EQ(tool("smtActions", "DONE").caption(), "D&one");
    EXPECT_FALSE(tool("smtActions", "QV2").enabled());
    EXPECT_TRUE(tool("smtProj", kBeta).checked());
    EXPECT_TRUE(tool("smtKeywords", kKeyRed).checked());
    EXPECT_EQ(g().CurrentTaskGUID.size(), 36u) << "the check after the reset packs a fresh key";
    EXPECT_EQ(readInt("SELECT COUNT(*) FROM TASKS WHERE tskGUIDID='" + g().CurrentTaskGUID + "'"), 0);
}

TEST_F(NewTaskSave, AFailureAmongTheKeywordRowsKeepsTheTaskRowWithoutThemAndEndsTheSession) {
    // The second keyword row of a task fails, after the first was written.
    if (onServerStore()) {
        exec("CREATE FUNCTION refuse_second() RETURNS trigger LANGUAGE plpgsql AS $$ BEGIN IF (SELECT COUNT(*) "
             "FROM TaskKeywords WHERE ktTASKGUID = NEW.ktTASKGUID) >= 1 THEN RAISE EXCEPTION 'the disk refused'; "
             "END IF; RETURN NEW; END $$");
        exec("CREATE TRIGGER refuse BEFORE INSERT ON TaskKeywords FOR EACH ROW EXECUTE FUNCTION refuse_second()");
    } else {
        exec("CREATE TRIGGER refuse BEFORE INSERT ON TaskKeywords WHEN (SELECT COUNT(*) FROM TaskKeywords "
             "WHERE ktTASKGUID = NEW.ktTASKGUID) >= 1 BEGIN SELECT RAISE(ABORT, 'the disk refused'); END");
    }
    fireTimer();
    click("smtProj", kBeta);
    click("smtKeywords", kKeyRed);
    click("smtKeywords", kKeyBlue);
    typeDescription("Half a save");
    click("smtActions", "QV");
    open(0);

    EXPECT_EQ(readInt("SELECT COUNT(*) FROM TASKS WHERE tskDesc='Half a save'"), 1) << "the task row stays";
    EXPECT_EQ(readInt("SELECT COUNT(*) FROM TaskKeywords"), 0) << "none of its keyword rows do";
    ASSERT_EQ(reporter().faults().size(), 1u);
    EXPECT_NE(reporter().faults()[0].description.find("the disk refused"), std::string::npos);
    EXPECT_EQ(count("NewTask"), 0) << "the host is not told of a save that failed";
    EXPECT_FALSE(form().loaded());
}

TEST_F(NewTaskSave, HostKeyIsKeptAndACompletedTaskIsDoneToday) {
    const std::string hostKey = "12345678-1234-1234-1234-123456789012";
    fireTimer();
    then([this] { sheet("smtOther").click(*tool("smtOther", "STATUS").item("STATUS-0")); });
    typeDescription("Born done");
    click("smtActions", "QV");
    then([this] { sheet("smtOther").click(*tool("smtOther", "STATUS").item("STATUS-0")); });
    typeDescription("Done by Enter");
    key(vbKeyReturn);
    closeHidden();
    open(0, hostKey);

    EXPECT_EQ(readOne("SELECT tskDesc FROM TASKS WHERE tskGUIDID='" + hostKey + "'"), "Born done");
    EXPECT_EQ(readOne("SELECT tskDoneDate FROM TASKS WHERE tskDesc='Born done'").substr(0, 10), "2024-01-15");
    EXPECT_EQ(count("NewTaskIsDone"), 1) << "the add tool tells a completed task apart";
    EXPECT_EQ(count("NewTask"), 1) << "Enter tells NewTask whatever the status";
    EXPECT_EQ(readInt("SELECT tskStatus FROM TASKS WHERE tskDesc='Done by Enter'"), 0);
}

TEST_F(NewTaskSave, CatalogItemIsFiledAndATaskIsMadeFromIt) {
    fireTimer();
    click("smtProj", kBeta);
    click("smtImp", "IMP-3");
    click("smtDiff", "DIF-2");
    click("smtTimeNeeded", "TIM-2");
    click("smtKeywords", kKeyBlue);
    typeDescription("Monthly backup");
    click("smtActions", "TC");
    closeHidden();
    open();

    EXPECT_EQ(count("doNewTaskCatItem"), 1);
    EXPECT_EQ(readInt("SELECT COUNT(*) FROM TASKS"), 0);
    const std::string item = readOne("SELECT tskGUIDID FROM TASKSCAT WHERE tskDesc='Monthly backup'");
    ASSERT_EQ(item.size(), 36u);
    EXPECT_EQ(readInt("SELECT tskTimeNeeded FROM TASKSCAT"), 60);
    EXPECT_EQ(readOne("SELECT ktKeyword FROM TaskKeywords WHERE ktTASKGUID='" + item + "'"), "Blue");
    EXPECT_EQ(g().TaskMode, 5);

    events_.clear();
    then([this] {
        EXPECT_EQ(form().editor("spellTask")->text(), "Monthly backup");
        EXPECT_TRUE(tool("smtProj", kBeta).checked());
        EXPECT_TRUE(sheet("smtImp").at(4).checked());
        EXPECT_TRUE(tool("smtTimeNeeded", "TIM-2").checked());
        EXPECT_EQ(tool("smtTimeNeeded", "CUSTOMTIME").text(), "");
        EXPECT_FALSE(tool("smtKeywords", kKeyBlue).checked()) << "the item's keywords do not come across";
        EXPECT_TRUE(tool("smtActions", "QV").enabled());
        EXPECT_EQ(g().TaskCatGUID.size(), 36u);
        EXPECT_NE(g().CurrentTaskGUID, g().TaskCatGUID) << "the new task gets a key of its own";
    });
    fireTimer();
    then([this] { EXPECT_TRUE(sheet("smtImp").at(4).checked()) << "no defaults for a catalog item"; });
    click("smtActions", "QV");
    closeHidden();
    open(6, item);

    EXPECT_EQ(events_.front(), "LoadingTask");
    EXPECT_EQ(count("NewTask"), 1);
    EXPECT_EQ(readInt("SELECT tskImp FROM TASKS WHERE tskDesc='Monthly backup'"), 3);
    EXPECT_EQ(readOne("SELECT tskTaskCatGUID FROM TASKS"), "") << "a task keeps no link to its item";
}

TEST_F(NewTaskSave, CatalogItemWithAPastDeadlineAndAnOddTime) {
    const std::string item = "99999999-0000-0000-0000-000000000009";
    exec("INSERT INTO TASKSCAT (tskGUIDID, tskDesc, tskProjectKey, tskImp, tskDifficulty, tskTimeNeeded, "
         "tskDeadline, tskStatus, tskHasChecklist, tskCurrent) VALUES ('" + item + "', 'Old', '" + kAlpha +
         "', 0, 0, 95, '2023-12-01T09:30:00.000', 2, 0, 1)");
    fireTimer();
    closeHidden();
    open(6, item);

    EXPECT_EQ(tool("smtTimeNeeded", "CUSTOMTIME").text(), "1:35");
    EXPECT_EQ(sheet("smtTimeNeeded").at(2).checked(), false);
    EXPECT_TRUE(tool("smtOther", "DEADDATE").bold());
    EXPECT_EQ(tool("smtOther", "DEADTIME").foreColor(), 255);
    EXPECT_EQ(tool("smtOther", "DEADTIME").text(), "9:30:00 AM");
    EXPECT_EQ(tool("smtOther", "STATUS").text(), "On Hold");
    EXPECT_TRUE(tool("smtOther", "ISCURRENT").checked());
    EXPECT_FALSE(tool("smtOther", "DATEDONE").visible());
}

}  // namespace qv
