#include "values/settings/Stopwatch.h"

#include <gtest/gtest.h>

#include "session/globals/SessionGlobals.h"
#include "support/TestEnv.h"
#include "toolkit/Failure.h"
#include "toolkit/Sheet.h"
#include "toolkit/Timer.h"
#include "values/settings/StopwatchDisplay.h"

namespace qv {
namespace {

class StopwatchTest : public TestEnv {
protected:
    StopwatchTest() : TestEnv({false, false}) {}
};

TEST_F(StopwatchTest, ElapsedTimeReadsAsAClock) {
    ASSERT_TRUE(startTimer());
    EXPECT_EQ(ElapsedTime(), "00:00:00");
    fakeClock().advance(5'999);
    EXPECT_EQ(ElapsedTime(), "00:00:05");
    fakeClock().advance(59'001);
    EXPECT_EQ(ElapsedTime(), "00:01:05");  // 65 seconds
    ASSERT_TRUE(startTimer());
    fakeClock().advance(3'725'000);
    EXPECT_EQ(ElapsedTime(), "01:02:05");
    ASSERT_TRUE(StopTimer());
    fakeClock().advance(10'000);
    EXPECT_EQ(ElapsedTime(), "01:02:05");  // stopped: the same value
    ASSERT_TRUE(startTimer());
    fakeClock().advance(int64_t{25} * 3'600'000 + 187'000);
    EXPECT_EQ(ElapsedTime(), "25:3:7");  // no clock time: stands as built
    EXPECT_TRUE(reporter().faults().empty());
}

TEST_F(StopwatchTest, OverflowsGoToTheReporter) {
    ASSERT_TRUE(startTimer());
    fakeClock().advance(int64_t{32'768} * 60'000);  // minutes beyond 16 bits
    EXPECT_EQ(ElapsedTime(), "");
    ASSERT_EQ(reporter().faults().size(), 1u);
    EXPECT_EQ(reporter().faults()[0].procedure, "ElapsedTime");
    EXPECT_EQ(reporter().faults()[0].number, err::Overflow);

    fakeClock().setTickCount(0x7FFFFF00u);
    ASSERT_TRUE(startTimer());
    fakeClock().setTickCount(0x80000100u);  // wrapped at 2^31
    EXPECT_EQ(ElapsedTime(), "");
    EXPECT_EQ(reporter().faults().size(), 2u);
}

TEST_F(StopwatchTest, DisplayRunsOnTimer1) {
    Sheet times("smtTimes");
    Tool& display = times.add(ttButton, "TIMER", "Timer");
    Timer timer1("Timer1");
    StopwatchDisplay watch(display, timer1);

    display.setText("keep");
    watch.StopTHETimer();  // not running: nothing changes
    EXPECT_EQ(display.text(), "keep");

    watch.StartTHETimer();
    EXPECT_EQ(display.text(), "00:00:00");
    EXPECT_TRUE(timer1.enabled());
    EXPECT_EQ(timer1.interval(), 1000);
    fakeClock().advance(65'000);
    EXPECT_EQ(display.text(), "00:01:05");  // refreshed by the tick
    fakeClock().advance(500);
    watch.StopTHETimer();
    EXPECT_FALSE(watch.running());
    EXPECT_EQ(display.text(), "00:01:05");
    fakeClock().advance(5'000);
    EXPECT_EQ(display.text(), "00:01:05");
    EXPECT_NE(g().StopwatchStop, 0);
}

}  // namespace
}  // namespace qv
