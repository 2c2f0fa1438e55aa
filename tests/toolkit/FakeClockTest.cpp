#include <gtest/gtest.h>

#include "toolkit/FakeClock.h"
#include "toolkit/SystemClock.h"

namespace qv {

TEST(FakeClock, NowTickAndSecondsMoveTogether) {
    FakeClock c(45306.5);  // noon
    const uint32_t tick0 = c.tickCount();
    EXPECT_DOUBLE_EQ(c.secondsSinceMidnight(), 43200.0);
    c.advance(90500);
    EXPECT_EQ(c.tickCount() - tick0, 90500u);
    EXPECT_DOUBLE_EQ(c.secondsSinceMidnight(), 43290.5);
    EXPECT_NEAR(c.now(), 45306.5 + 90.5 / 86400.0, 1e-9);

    // Across midnight the seconds start again and the day moves on.
    c.setNow(45306.0 + 86399.0 / 86400.0);
    c.advance(2000);
    EXPECT_DOUBLE_EQ(c.secondsSinceMidnight(), 1.0);
    EXPECT_EQ(static_cast<int>(c.now()), 45307);

    // The tick count wraps like the platform's.
    c.setTickCount(0xFFFFFFFFu - 10);
    c.advance(20);
    EXPECT_EQ(c.tickCount(), 9u);
}

TEST(SystemClock, AgreesWithItself) {
    SystemClock c;
    const double now = c.now();
    const double secs = c.secondsSinceMidnight();
    EXPECT_GT(now, 45000.0);  // after 2023
    EXPECT_NEAR((now - static_cast<int>(now)) * 86400.0, secs, 5.0);
    EXPECT_GE(secs, 0.0);
    EXPECT_LT(secs, 86400.0);
    const uint32_t t0 = c.tickCount();
    EXPECT_LT(c.tickCount() - t0, 1000u);
}

}  // namespace qv
