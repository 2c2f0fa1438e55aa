#pragma once
// A user-interface timer: while enabled it ticks every Interval
// milliseconds of the installed clock's tick count. Timers fire only from
// fireDue(), which the event pump calls: FakeClock::advance and
// ScriptedUi::doEvents in tests, a QTimer on the desktop.

#include <cstdint>
#include <optional>
#include <string>

#include "Export.h"
#include "toolkit/Event.h"

namespace qv {

class QV_EXPORT Timer {
public:
    explicit Timer(std::string name = {});
    ~Timer();
    Timer(const Timer&) = delete;
    Timer& operator=(const Timer&) = delete;

    [[nodiscard]] const std::string& name() const { return name_; }
    // Milliseconds; 0 keeps the timer from ticking. Setting it restarts the count.
    [[nodiscard]] int32_t interval() const { return interval_; }
    void setInterval(int32_t ms);
    [[nodiscard]] bool enabled() const { return enabled_; }
    // Enabling starts a fresh count; disabling inside the own tick sticks.
    void setEnabled(bool e);

    // Fires every enabled timer whose due time has passed, re-arming it
    // before its handlers run.
    static void fireDue();
    // Milliseconds until the earliest enabled timer is due (0 if overdue);
    // empty when none is waiting.
    [[nodiscard]] static std::optional<int64_t> msUntilNextDue();
    // Enabled timers with a positive interval.
    [[nodiscard]] static int32_t activeCount();

    Event<> Tick;  // the timer's Timer event

private:
    [[nodiscard]] bool waiting() const { return enabled_ && interval_ > 0; }
    void arm();
    [[nodiscard]] int64_t msUntilDue(uint32_t now);

    std::string name_;
    int32_t interval_ = 0;
    bool enabled_ = false;
    bool armed_ = false;  // false while no clock was there to arm it
    uint32_t due_ = 0;
};

}  // namespace qv
