#pragma once
// A clock for tests: "now", the tick count and the seconds since midnight
// move together, and only when a test advances them. Advancing fires the
// timers that come due on the way, each at its own due time.

#include <cstdint>

#include "Export.h"
#include "toolkit/Clock.h"

namespace qv {

class QV_EXPORT FakeClock : public Clock {
public:
    // Starts at 2024-01-15 09:00 with a tick count of one million.
    FakeClock();
    explicit FakeClock(double startSerial);

    [[nodiscard]] double now() const override;
    [[nodiscard]] uint32_t tickCount() const override { return tick_; }
    [[nodiscard]] double secondsSinceMidnight() const override;

    // Moves "now" only; the tick count keeps counting from where it is.
    void setNow(double serial);
    void setTickCount(uint32_t tick) { tick_ = tick; }
    // Lets ms pass. While this clock is the installed one, timers fire.
    void advance(int64_t ms);

private:
    void step(int64_t ms);
    [[nodiscard]] bool installed() const;

    int64_t msSinceEpoch_ = 0;  // local time in ms since 1899-12-30
    uint32_t tick_ = 1000000;
};

}  // namespace qv
