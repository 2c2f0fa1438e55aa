// What "UPDATE" writes and leaves, status and Done, the catalog's time
// history, the host's events, and the checks that keep it disabled.

#include <string>

#include "dialogs/DialogExpect.h"
#include "dialogs/existingtask/ExistingTaskFixture.h"
#include "session/globals/SessionGlobals.h"
#include "toolkit/Ui.h"
#include "values/types/DateSerial.h"

namespace qv {

namespace {
class ExistingTaskUpdate : public Seeded<ExistingTaskFixture> {
protected:
    void expectColumns(Expected cases) const {
        expectEach([this](const std::string& c) { return column(c); }, cases);
    }
};
}  // namespace

TEST_F(ExistingTaskUpdate, ChangedDeadlineIsWrittenAndOnlyAssignedColumnsGoBack) {
    addTask(", tskCustSortQV", ", 7");
    then([this] {
        eform().dateBox("ctDeadline")->userSetValue(46000.0);
        EXPECT_TRUE(tool("smtActions", "UPDATE").enabled());
        EXPECT_EQ(tool("smtActions", "DONE").caption(), "D&one");
        EXPECT_TRUE(eform().fields().IsDirty);
        // Another process writes the scheduled time while the dialog is up.
        exec("UPDATE TASKS SET tskTimeScheduled=555");
        fakeClock().setNow(45310.5);
    });
    etype("smtABOUT", "DEADTIME", "17:00");
    click("smtActions", "UPDATE");
    openTask();

    EXPECT_EQ(column("tskDeadline").substr(0, 16), "2025-12-09T16:59") << "the time goes through single precision";
    EXPECT_EQ(column("tskTimeScheduled"), "555") << "a column the dialog did not assign keeps the host's change";
    expectColumns({{"tskLastMod", dateserial::toIso(45310.5)}, {"tskCustSortQV", "7"},
                   {"tskDesc", "Paint the fence"}, {"tskTimeSpent", "45"}, {"tskCurrent", "1"},
                   {"tskHasSchedule", "0"}});
    EXPECT_EQ(count("TaskUpdated"), 1);
    EXPECT_EQ(count("TaskIsDone"), 0);
    EXPECT_EQ(events_.back(), "DoCloseTaskForm");
    EXPECT_TRUE(reporter().faults().empty());
}

TEST_F(ExistingTaskUpdate, DoneTickCompletesTheTaskWithTodayAsDateDone) {
    addTask();
    then([this] {
        fakeClock().setNow(45320.75);
        sheet("smtReady").click(tool("smtReady", "DONE"));
        EXPECT_EQ(tool("smtABOUT", "STATUS").text(), "Completed");
        EXPECT_EQ(tool("smtABOUT", "STATUS").tag(), "0");
        EXPECT_TRUE(tool("smtABOUT", "DATEDONE").visible());
        EXPECT_EQ(eform().dateBox("ctTheDateDone")->value(), 45320.0);
        EXPECT_TRUE(tool("smtActions", "UPDATE").enabled());
    });
    click("smtActions", "UPDATE");
    openTask();
    expectColumns({{"tskStatus", "0"}, {"tskDoneDate", dateserial::toIso(45320.0)}, {"tskWasImported", "0"}});
    EXPECT_EQ(count("TaskIsDone"), 1);
    EXPECT_EQ(count("TaskUpdated"), 0);

    // Back to In Progress: Date Done goes, the stored date stays.
    choose("STATUS", "In Progress");
    then([this] {
        EXPECT_FALSE(tool("smtABOUT", "DATEDONE").visible());
        EXPECT_FALSE(tool("smtReady", "DONE").checked());
        EXPECT_EQ(eform().fields().record().DateDone, 1.0);
    });
    key(vbKeyReturn);
    openTask();
    expectColumns({{"tskStatus", "1"}, {"tskDoneDate", dateserial::toIso(45320.0)}});
    EXPECT_EQ(count("TaskUpdated"), 1);
}

TEST_F(ExistingTaskUpdate, CompletedCatalogTaskShiftsTheTimeHistoryOnEachSave) {
    exec("INSERT INTO TASKSCAT (tskGUIDID, tskTimeN0, tskTimeN1, tskTimeN2, tskTimeN3, tskTimeN4) VALUES ('" +
         std::string(kCatalogItem) + "', 10, 20, 30, 40, 50)");
    addTask(", tskTaskCatGUID", ", '" + std::string(kCatalogItem) + "'");
    exec("UPDATE TASKS SET tskStatus=0");
    const std::string item = " FROM TASKSCAT WHERE tskGUIDID='" + std::string(kCatalogItem) + "'";
    const auto history = [&] {
        std::string h;
        for (int i = 0; i < 5; ++i) h += readOne("SELECT tskTimeN" + std::to_string(i) + item) + " ";
        return h;
    };
    etype("smtABOUT", "NEEDED", "2:00");
    click("smtActions", "UPDATE");
    openTask();
    EXPECT_EQ(history(), "45 10 20 30 40 ");
    EXPECT_EQ(count("TaskIsDone"), 1);

    etype("smtTimes", "TIMESPENT", "1:05");
    click("smtActions", "UPDATE");
    openTask();
    EXPECT_EQ(history(), "65 45 10 20 30 ") << "a second save moves the history again";
    EXPECT_EQ(column("tskTimeSpent"), "65");

    // A spent time beyond 16 bits overflows the history and takes the
    // error path; nothing of the save is committed.
    exec("UPDATE TASKS SET tskTimeSpent=40000");
    etype("smtABOUT", "NEEDED", "3:00");
    click("smtActions", "UPDATE");
    openTask();
    ASSERT_EQ(reporter().faults().size(), 1u);
    EXPECT_EQ(reporter().faults()[0].procedure, "UpdateTask");
    expectColumns({{"tskTimeSpent", "40000"}, {"tskTimeNeeded", "120"}});
    EXPECT_EQ(history(), "65 45 10 20 30 ");
}

TEST_F(ExistingTaskUpdate, ChecksKeepUpdateDisabledAndTellWhatIsMissing) {
    addTask();
    typeDescription(std::string(256, 'x'));
    then([this] {
        EXPECT_FALSE(tool("smtActions", "UPDATE").enabled());
        EXPECT_TRUE(scriptedUi().messages().empty()) << "a long description is refused silently";
        EXPECT_TRUE(eform().fields().IsDirty) << "a handled edit stays dirty";
        eform().editor("spellTask")->userEdit(std::string(255, 'x'));
        EXPECT_TRUE(tool("smtActions", "UPDATE").enabled());
        scriptedUi().queueAnswer(vbOK);
        sheet("smtABOUT").userChoose(tool("smtABOUT", "DEADTIME"), "half past");
        EXPECT_EQ(scriptedUi().lastMessage().text, "Deadline Time needs to be a recognizable time.");
        EXPECT_EQ(scriptedUi().lastMessage().style, vbInformation);
        EXPECT_FALSE(tool("smtActions", "UPDATE").enabled());
        EXPECT_EQ(tool("smtActions", "DONE").caption(), "D&one") << "the caption stays once a check passed";
        sheet("smtABOUT").userChoose(tool("smtABOUT", "DEADTIME"), "");
        // Points: importance 2, difficulty 3, the time class of 90 minutes.
        const auto& p = g().PointsTable;
        EXPECT_EQ(tool("smtReady", "POINTS").caption(), std::to_string(p[2] + p[8] + p[11]));
        sheet("smtABOUT").userChoose(tool("smtABOUT", "NEEDED"), "0:10");
        EXPECT_EQ(tool("smtReady", "POINTS").caption(), std::to_string(p[2] + p[8] + p[10]));
        sheet("smtABOUT").userChoose(tool("smtABOUT", "NEEDED"), "2:00");
        EXPECT_EQ(tool("smtReady", "POINTS").caption(), std::to_string(p[2] + p[8] + p[12]));
    });
    click("smtActions", "UPDATE");
    openTask();
    expectColumns({{"tskDesc", std::string(255, 'x')}, {"tskTimeNeeded", "120"}});

    // A stored time of weeks does not read back to its minutes: left as it
    // is, it keeps them; a time of days typed anew is refused unwritten.
    exec("UPDATE TASKS SET tskTimeSpent=40000");
    typeDescription("Paint it twice");
    click("smtActions", "UPDATE");
    openTask();
    expectColumns({{"tskTimeSpent", "40000"}, {"tskDesc", "Paint it twice"}});
    typeDescription("Paint it thrice");
    then([this] { tool("smtTimes", "TIMESPENT").setText("2 Days"); });
    click("smtActions", "UPDATE");
    look([this] { EXPECT_FALSE(tool("smtActions", "UPDATE").enabled()); });
    expectColumns({{"tskTimeSpent", "40000"}, {"tskDesc", "Paint it twice"}});
    EXPECT_TRUE(reporter().faults().empty());
}

TEST_F(ExistingTaskUpdate, OutlookIsToldOnlyWithIntegrationAndAnEntry) {
    addTask(", tskOUTEntityID", ", 'OUT-1'");
    exec("UPDATE Settings SET SetSettingValue='True' WHERE SetSettingName='Integrate Outlook Tasks'");
    typeDescription("Paint the gate");
    click("smtActions", "UPDATE");
    openTask();
    ASSERT_EQ(count("Fire1OutlookTaskUpdate"), 1);
    EXPECT_EQ(column("tskDesc"), "Paint the gate");

    exec("UPDATE Settings SET SetSettingValue='False' WHERE SetSettingName='Integrate Outlook Tasks'");
    typeDescription("Paint the shed");
    click("smtActions", "UPDATE");
    openTask();
    EXPECT_EQ(count("Fire1OutlookTaskUpdate"), 1);
}

TEST_F(ExistingTaskUpdate, EscapeAsksAfterAValidEditAndCloseBoxAsksItsOwn) {
    addTask();
    typeDescription("Paint the gate");
    answer(vbNo);
    key(vbKeyEscape);
    then([this] {
        EXPECT_EQ(scriptedUi().lastMessage().text, "Discard changes made to this Task?");
        EXPECT_EQ(scriptedUi().lastMessage().style, vbYesNo | vbQuestion);
        EXPECT_TRUE(eform().visible());
        EXPECT_EQ(eform().editor("spellTask")->text(), "Paint the gate");
    });
    answer(vbNo);
    then([this] { eform().requestClose(); });
    then([this] {
        EXPECT_EQ(scriptedUi().lastMessage().text, "Cancel updating the current task?");
        EXPECT_EQ(scriptedUi().lastMessage().style, vbYesNo);
        EXPECT_TRUE(eform().visible());
    });
    answer(vbYes);
    key(vbKeyEscape);
    openTask();
    EXPECT_EQ(column("tskDesc"), "Paint the fence");
    EXPECT_EQ(count("DoCloseTaskForm"), 2);
    EXPECT_EQ(count("TaskUpdated"), 0);

    // Untouched, Cancel asks nothing.
    click("smtActions", "DONE");
    openTask();
    EXPECT_EQ(scriptedUi().messages().size(), 3u);
}

}  // namespace qv
