// Opening a Task Appointment: the slot's own copies beside its task's
// values, the lists, the checklist, the window and the settings upgrade.

#include "dialogs/DialogExpect.h"
#include "dialogs/appointment/AppointmentFixture.h"
#include "session/globals/SessionGlobals.h"
#include "toolkit/DateBox.h"
#include "toolkit/Label.h"
#include "toolkit/TextEditor.h"
#include "toolkit/Ui.h"
#include "values/types/DateSerial.h"

namespace qv {

namespace {
class AppointmentLoad : public Seeded<AppointmentFixture> {
protected:
    // Opens, checks inside the dialog, and cancels.
    void openAndLook(const std::function<void()>& look, const std::string& slot = kSlot) {
        then(look);
        click("smtActions", "CANCEL");
        open(slot);
    }
};
}  // namespace

TEST_F(AppointmentLoad, ShowsTheSlotsOwnCopiesBesideTheTasksValues) {
    exec("UPDATE TASKS SET tskProject='Beta', tskImp=4, tskDesc='Task words' WHERE tskGUIDID='" + std::string(kTask) +
         "'");
    openAndLook([this] {
        EXPECT_EQ(form().caption(), "Quorvel - Version 1.14 - Task Appointment");
        EXPECT_EQ(form().editor("spellTask")->text(), "Slot text") << "the description is the slot's";
        // Project, importance and difficulty are the slot's copies; the rest is the task's.
        expectTools(sheet("smtABOUT"), &Tool::text,
                    {{"PROJECT", "Alpha"}, {"IMP", g().ImportanceList[2]}, {"DIFF", g().DifficultyList[1]},
                     {"ISCURRENT", "Yes"}, {"NEEDED", "0:45"}, {"SPENT", "0:20"}, {"STATUS", "Defined"}});
        expectTools(sheet("smtABOUT"), &Tool::tag,
                    {{"PROJECT", kAlpha}, {"IMP", "2"}, {"ISCURRENT", "TRUE"}, {"SCHEDULED", "0:30"},
                     {"STATUS", "3"}});
        // A slot never judged keeps the design text "Completed".
        expectTools(sheet("smtTimes"), &Tool::text,
                    {{"START", "9:00:00 AM"}, {"END", "10:30:00 AM"}, {"DONE", "Completed"}, {"TIMESPENT", "0:00"}});
        EXPECT_EQ(form().dateBox("ctTADate")->value(), dateserial::fromCivil(2026, 11, 24));
        EXPECT_EQ(tool("smtReady", "POINTS").text(), "7");
        EXPECT_FALSE(tool("smtReady", "DONE").checked());
        EXPECT_EQ(form().editor("SpellNotes")->text(), "task notes");
        EXPECT_EQ(tool("smtABOUT", "DEADLINE").foreColor(), 255);
        EXPECT_TRUE(tool("smtABOUT", "DEADLINE").bold());
        EXPECT_FALSE(tool("smtABOUT", "STATUS").bold());
        EXPECT_FALSE(tool("smtActions", "SAVE").enabled()) << "filling the tools enables nothing";
        EXPECT_EQ(tool("smtABOUT", "STATUS").items().size(), g().StatusList.size());
        ASSERT_NE(tool("smtABOUT", "PROJECT").item(std::string("PRJ-") + kBeta), nullptr);
        EXPECT_EQ(tool("smtABOUT", "PROJECT").item(std::string("PRJ-") + kBeta)->caption(), "B+eta");
        EXPECT_EQ(g().ProjectNames, (std::vector<std::string>{"Alpha", "B+eta"}));
        EXPECT_EQ(form().getTATimeNeeded(), "1:30");
        EXPECT_FALSE(g().SettingUp);
    });
    EXPECT_EQ(count("DoCloseTaskForm"), 1);
    EXPECT_EQ(count("LoadingTask"), 0) << "mode 2 raises no LoadingTask";
}

TEST_F(AppointmentLoad, CompletedTasksAndWorkedSlotsAndNoDeadline) {
    exec("UPDATE TASKS SET tskStatus=0, tskDeadline=NULL, tskCurrent=0");
    exec("UPDATE TASKAPPTS SET taWasWorked=1, taTimeWorked=75");
    openAndLook([this] {
        expectTools(sheet("smtABOUT"), &Tool::text, {{"STATUS", "Completed"}, {"DEADLINE", ""}, {"ISCURRENT", "No"}});
        expectTools(sheet("smtTimes"), &Tool::text, {{"DONE", "Complete"}, {"TIMESPENT", "1:15"}});
        EXPECT_TRUE(tool("smtABOUT", "STATUS").bold());
        EXPECT_TRUE(tool("smtReady", "DONE").checked());
        EXPECT_EQ(tool("smtABOUT", "DEADLINE").foreColor(), 0);
    });
    exec("UPDATE TASKAPPTS SET taWasWorked=0");
    exec("UPDATE TASKS SET tskStatus=2");
    openAndLook([this] {
        EXPECT_EQ(tool("smtTimes", "DONE").text(), "Not Complete");
        EXPECT_EQ(tool("smtABOUT", "STATUS").text(), "On Hold");
    });
}

TEST_F(AppointmentLoad, ChecklistFlagWithoutKeyIsPutRightAndALostChecklistIsTold) {
    exec("UPDATE TASKS SET tskHasChecklist=1, tskTCheckListGUID=''");
    openAndLook([this] {
        EXPECT_FALSE(form().checklist.utilCheckListExists);
        EXPECT_FALSE(tool("smtCKActions", "EDIT").visible());
    });
    EXPECT_EQ(taskValue("tskHasChecklist"), "0") << "corrected while loading, without a save";

    exec("UPDATE TASKS SET tskHasChecklist=1, tskTCheckListGUID='" + std::string(kChecklist) + "'");
    answer(vbOK);
    openAndLook([this] { EXPECT_FALSE(form().checklist.utilCheckListExists); });
    ASSERT_EQ(scriptedUi().messages().size(), 1u);
    EXPECT_EQ(scriptedUi().messages()[0].text, "The checklist formerly associated with this task could not be found.");
    EXPECT_EQ(taskValue("tskTCheckListGUID"), kChecklist) << "the dead key stays until a save";

    const std::string name(81, 'n');
    exec("INSERT INTO CHECKLISTS (ckGUIDID, ckName, ckContent) VALUES ('" + std::string(kChecklist) + "', '" + name +
         "', 'step one')");
    openAndLook([this, name] {
        EXPECT_EQ(form().label("lblCk")->caption(), std::string(80, 'n') + "... Checklist: ");
        EXPECT_EQ(form().checklist.utilChecklistName, name);
        EXPECT_EQ(form().editor("spellCK")->text(), "step one");
        EXPECT_TRUE(tool("smtCKActions", "EDIT").visible());
        EXPECT_EQ(form().TACheckListGUID, kChecklist);
    });
}

TEST_F(AppointmentLoad, AKeyThatIsNoKeyReadsNoRowAndAMissingSlotKeepsTheTemplate) {
    openAndLook(
        [this] {
            EXPECT_EQ(tool("smtABOUT", "STATUS").items().size(), g().StatusList.size()) << "lists are filled";
            EXPECT_EQ(form().editor("spellTask")->text(), "");
            EXPECT_TRUE(form().TATaskGUID.empty());
        },
        std::string(kSlot).substr(1));
    openAndLook([this] { EXPECT_EQ(tool("smtTimes", "DONE").text(), "Completed"); },
                "99999999-0000-0000-0000-000000000009");
    EXPECT_TRUE(reporter().faults().empty());
}

TEST_F(AppointmentLoad, WindowComesBackFromItsSettingsAndIsStoredAtTheClose) {
    exec("DELETE FROM Settings WHERE SetSettingSection='TAS' AND SetSettingName='WindowState'");
    openAndLook([this] {
        EXPECT_EQ(form().geometry().left, 1000) << "the first value is the left";
        EXPECT_EQ(form().geometry().top, 2000);
        EXPECT_EQ(form().geometry().state, vbNormal);
    });
    EXPECT_EQ(readInt("SELECT COUNT(*) FROM Settings WHERE SetSettingSection='TAS'"), 6);

    exec("UPDATE Settings SET SetSettingValue='1' WHERE SetSettingSection='TAS' AND SetSettingName='WindowState'");
    openAndLook([this] { EXPECT_EQ(form().geometry().state, vbNormal) << "never back minimised, nor maximised"; });
    exec("UPDATE Settings SET SetSettingValue='2' WHERE SetSettingSection='TAS' AND SetSettingName='WindowState'");
    openAndLook([this] { EXPECT_EQ(form().geometry().state, vbMaximized); });

    // A resize keeps the minimum width; the close stores the geometry.
    then([this] {
        form().userResized({300, 400, 5000, 9000, vbNormal});
        EXPECT_EQ(form().geometry().width, 8400);
        EXPECT_EQ(form().geometry().height, 9000);
        EXPECT_EQ(g().TASWindow[0], 300);
        EXPECT_EQ(g().TASWindow[1], 400);
        form().userResized({300, 400, 8400, 9000, vbMaximized});
        EXPECT_EQ(g().TASWindow[5], vbMaximized);
        EXPECT_EQ(g().TASWindow[0], 300) << "a maximised window keeps its normal geometry";
        form().userResized({300, 400, 8400, 9000, vbNormal});
    });
    then([this] { form().requestClose(); });
    open();
    EXPECT_EQ(readOne("SELECT SetSettingValue FROM Settings WHERE SetSettingSection='TAS' AND "
                      "setSettingDisplayOrd=1"),
              "300");
    EXPECT_EQ(count("DoCloseTaskForm"), 4);
}

}  // namespace qv
