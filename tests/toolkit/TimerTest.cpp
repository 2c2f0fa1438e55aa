#include <gtest/gtest.h>

#include <memory>

#include "ToolkitFixture.h"
#include "toolkit/Timer.h"

namespace qv {

using TimerTest = ToolkitFixture;

TEST_F(TimerTest, FiresOnlyWhenTheFakeClockPassesItsDueTime) {
    Timer t("Timer1");
    int ticks = 0;
    t.Tick.connect([&] { ++ticks; });
    t.setInterval(1000);
    clock_.advance(5000);
    EXPECT_EQ(ticks, 0) << "a disabled timer never ticks";

    t.setEnabled(true);
    clock_.advance(999);
    EXPECT_EQ(ticks, 0);
    clock_.advance(1);
    EXPECT_EQ(ticks, 1);
    clock_.advance(3500);
    EXPECT_EQ(ticks, 4) << "one tick per interval that passed";

    // A new interval restarts the count.
    t.setInterval(200);
    clock_.advance(199);
    EXPECT_EQ(ticks, 4);
    clock_.advance(1);
    EXPECT_EQ(ticks, 5);

    t.setInterval(0);
    clock_.advance(10000);
    EXPECT_EQ(ticks, 5) << "interval 0 keeps it quiet";
}

TEST_F(TimerTest, OneShotStaysOffAndDestroyedTimersLeave) {
    Timer oneShot("startTimer");
    int shots = 0;
    oneShot.Tick.connect([&] {
        ++shots;
        oneShot.setInterval(200);
        oneShot.setEnabled(false);
    });
    oneShot.setInterval(500);
    oneShot.setEnabled(true);
    clock_.advance(10000);
    EXPECT_EQ(shots, 1);
    EXPECT_FALSE(oneShot.enabled());

    // A handler that destroys another timer keeps that one from firing.
    Timer killer;
    auto victim = std::make_unique<Timer>();
    int victimTicks = 0;
    victim->Tick.connect([&] { ++victimTicks; });
    killer.Tick.connect([&] { victim.reset(); });
    killer.setInterval(100);
    victim->setInterval(100);
    killer.setEnabled(true);
    victim->setEnabled(true);
    EXPECT_EQ(Timer::activeCount(), 2);
    clock_.advance(100);
    EXPECT_EQ(victimTicks, 0);
    EXPECT_EQ(Timer::activeCount(), 1);
    EXPECT_EQ(Timer::msUntilNextDue(), 100);
}

TEST_F(TimerTest, DoEventsFiresDueTimersAcrossTickWrap) {
    clock_.setTickCount(0xFFFFFFFFu - 50);
    Timer t;
    int ticks = 0;
    t.Tick.connect([&] { ++ticks; });
    t.setInterval(100);
    t.setEnabled(true);
    ui_.setDoEventsStep(0);
    ui_.doEvents();
    EXPECT_EQ(ticks, 0);
    clock_.setTickCount(clock_.tickCount() + 100);  // moves without firing
    ui_.doEvents();
    EXPECT_EQ(ticks, 1);
}

}  // namespace qv
