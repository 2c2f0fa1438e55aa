// The time controls of a Task Appointment: the stopwatch, the copies into
// Time Spent, typed times, and the picks of the About sheet.

#include "dialogs/appointment/AppointmentFixture.h"
#include "dialogs/shared/StopwatchTool.h"
#include "session/globals/SessionGlobals.h"
#include "toolkit/Timer.h"
#include "toolkit/Ui.h"
#include "values/settings/Settings.h"

namespace qv {

using AppointmentTimeTools = Seeded<AppointmentFixture>;

TEST_F(AppointmentTimeTools, TheStopwatchRunsStopsAndCannotBeTypedOver) {
    click("smtTimes", "TIMER");
    then([this] {
        EXPECT_EQ(tool("smtTimes", "TIMER").tag(), "ON");
        EXPECT_EQ(tool("smtTimes", "TIMER").image(), "INUSE");
        EXPECT_EQ(tool("smtTimes", "TIMER").text(), "00:00:00");
        EXPECT_TRUE(tool("smtActions", "SAVE").enabled()) << "the reading is a change of the times sheet";
        fakeClock().advance(65'000);
        EXPECT_EQ(tool("smtTimes", "TIMER").text(), "00:01:05");
        EXPECT_FALSE(sheet("smtTimes").beginEdit(tool("smtTimes", "TIMER")));
    });
    click("smtTimes", "ADDFROMTIMER");
    then([this] {
        EXPECT_EQ(tool("smtTimes", "TIMESPENT").text(), "0:00") << "a clock reading reads as no minutes";
        EXPECT_TRUE(tool("smtActions", "SAVE").enabled());
        EXPECT_TRUE(form().timer("Timer1")->enabled()) << "the stopwatch goes on";
    });
    click("smtTimes", "TIMER");
    then([this] {
        fakeClock().advance(5'000);
        EXPECT_EQ(tool("smtTimes", "TIMER").tag(), "OFF");
        EXPECT_EQ(tool("smtTimes", "TIMER").image(), "GRAY");
        EXPECT_EQ(tool("smtTimes", "TIMER").text(), "00:01:05") << "the last reading stays";
    });
    click("smtTimes", "TIMER");
    click("smtReady", "DONE");
    then([this] {
        EXPECT_FALSE(form().timer("Timer1")->enabled()) << "Task is Done stops the stopwatch";
        EXPECT_EQ(tool("smtTimes", "TIMER").tag(), "ON") << "but leaves its tag behind";
    });
    click("smtReady", "DONE");
    then([this] {
        EXPECT_EQ(tool("smtABOUT", "STATUS").text(), "Defined") << "clearing the box always lands on Defined";
        EXPECT_EQ(tool("smtABOUT", "STATUS").tag(), "3");
        EXPECT_EQ(tool("smtTimes", "DONE").text(), "Not Complete");
    });
    key(vbKeyEscape);
    open();
    EXPECT_EQ(count("DoCloseTaskForm"), 1);
}

TEST_F(AppointmentTimeTools, TypedTimesAreJudgedAndCopiesFillTimeSpent) {
    then([this] { answer(vbOK); });
    type("smtTimes", "TIMESPENT", "abc");
    then([this] {
        EXPECT_EQ(scriptedUi().messages().back().text, "That value was not recognized as a time period like 1:00.");
        EXPECT_EQ(tool("smtTimes", "TIMESPENT").text(), "0:00");
        EXPECT_EQ(tool("smtABOUT", "SPENT").text(), "0:20") << "the total keeps its value";
    });
    type("smtTimes", "TIMESPENT", "0:40");
    then([this] {
        EXPECT_EQ(tool("smtABOUT", "SPENT").text(), "0:40") << "the total shows this slot's value";
        EXPECT_TRUE(tool("smtActions", "SAVE").enabled());
    });
    click("smtTimes", "COPYTIMENEEDED");
    then([this] { EXPECT_EQ(tool("smtTimes", "TIMESPENT").text(), "1:30") << "the slot's length"; });
    click("smtActions", "SAVE");
    open();
    EXPECT_EQ(slotValue("taTimeWorked"), "90");
    EXPECT_EQ(taskValue("tskTimeSpent"), "20") << "the task's total is not stored here";
}

TEST_F(AppointmentTimeTools, PicksMoveTheirNumberAndTimeScheduledCannotBeChanged) {
    click("smtABOUT", "IMP-3");
    click("smtABOUT", "DIF-4");
    then([this] {
        EXPECT_EQ(tool("smtABOUT", "IMP").tag(), "3");
        EXPECT_EQ(tool("smtABOUT", "DIFF").tag(), "4");
        EXPECT_EQ(tool("smtABOUT", "DIFF").text(), g().DifficultyList[4]);
        EXPECT_FALSE(tool("smtActions", "SAVE").enabled()) << "a pick alone enables nothing";
    });
    then([this] { answer(vbOK); });
    type("smtABOUT", "SCHEDULED", "9:00");
    then([this] {
        EXPECT_EQ(scriptedUi().messages().size(), 1u);
        EXPECT_EQ(scriptedUi().messages().back().text, "Time Scheduled is the sum of each Tasks' Task Appointments.");
        EXPECT_EQ(tool("smtABOUT", "SCHEDULED").text(), "0:30");
    });
    click("smtActions", "CANCEL");
    open();
}

TEST_F(AppointmentTimeTools, AReadingAndTimeSpentAddAsDurations) {
    LoadSettings();
    EXPECT_EQ(StopwatchTool::addReading("00:01:05", "1:00"), "1:00");
    EXPECT_EQ(StopwatchTool::addReading("0:30", "1:00"), "1:30");
}

}  // namespace qv
