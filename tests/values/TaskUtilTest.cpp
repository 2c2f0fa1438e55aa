#include <gtest/gtest.h>

#include "support/PrintPorts.h"
#include "support/ScopedEnv.h"
#include "toolkit/Failure.h"
#include "toolkit/Sheet.h"
#include "toolkit/ToolkitFixture.h"
#include "toolkit/Timer.h"
#include "values/types/International.h"
#include "values/types/TaskUtil.h"

namespace qv {

TEST(TaskUtil, ColourTexts) {
    EXPECT_EQ(LongToRGB(65535, ","), "255,255,0");
    EXPECT_EQ(LongToRGB(0x0A00FF, ";"), "255;0;10");
    EXPECT_EQ(RGBToHex("255,0,10", ","), "FF00A") << "only a 0 part is padded";
    EXPECT_EQ(RGBToHex("1;2;3;4", ";"), "123");
    EXPECT_EQ(LongToHex(255), "FF0000");
    EXPECT_EQ(LongToHex(0), "000000");
    for (const char* bad : {"255,0", "red,0,0"}) EXPECT_THROW((void)RGBToHex(bad, ","), Failure) << bad;
    EXPECT_THROW((void)RGBToHex("1,2,3", ""), Failure);
}

TEST(TaskUtil, TextAndListHelpers) {
    EXPECT_EQ(ZapAmps("R&D"), "R+D");
    EXPECT_EQ(ZapAmps("&&x&"), "++x+");

    Sheet s("smtOther");
    Tool& status = s.add(ttButton, "STATUS");
    status.addItem(ttOption, "STATUS-0", "Completed");
    Tool& defined = status.addItem(ttOption, "STATUS-1", "Defined");
    status.setText("Defined");
    EXPECT_EQ(GetItemSelected(status), &defined);
    status.setText("defined");
    EXPECT_EQ(GetItemSelected(status), nullptr);
}

using SubDelayTest = ToolkitFixture;

TEST_F(SubDelayTest, EndsOnTheFakeClockAndAtMidnight) {
    Timer t;
    int ticks = 0;
    t.Tick.connect([&] { ++ticks; });
    t.setInterval(500);
    t.setEnabled(true);
    const uint32_t t0 = clock_.tickCount();
    subDelay(2.0f);
    EXPECT_GE(clock_.tickCount() - t0, 2000u);
    EXPECT_LT(clock_.tickCount() - t0, 2100u);
    EXPECT_EQ(ticks, 4) << "events flow while waiting";

    // Starting a second before midnight, the wait ends once the day turns.
    clock_.setNow(45306.0 + 86399.0 / 86400.0);
    const uint32_t t1 = clock_.tickCount();
    subDelay(30.0f);
    EXPECT_LE(clock_.tickCount() - t1, 1100u);
    EXPECT_LT(clock_.secondsSinceMidnight(), 1.0);
}

TEST(International, MeasurementFromThePortOrTheEnvironment) {
    FixedLocale us;
    us.system = 1;
    const Ports saved = ports();
    ports().locale = &us;
    EXPECT_EQ(getLocalMeasurement(), 1);
    ports().locale = nullptr;

    ScopedEnv env;
    env.set("LC_ALL", "en_US.UTF-8");
    EXPECT_EQ(getLocalMeasurement(), 1);
    env.set("LC_ALL", "en_GB.UTF-8");
    EXPECT_EQ(getLocalMeasurement(), 0);
    ports() = saved;
}

}  // namespace qv
