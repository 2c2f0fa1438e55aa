#pragma once
// The stopwatch on a dialog's times sheet: the tool "TIMER" shows the clock
// text, refreshed by the dialog's repeating Timer1 once a second. Shared by
// the Existing Task and Task Appointment dialogs.

#include <cstddef>

namespace qv {

class Timer;
class Tool;

class StopwatchDisplay {
public:
    StopwatchDisplay(Tool& display, Timer& timer1);
    ~StopwatchDisplay();
    StopwatchDisplay(const StopwatchDisplay&) = delete;
    StopwatchDisplay& operator=(const StopwatchDisplay&) = delete;

    // "00:00:00", a fresh start, and the one-second tick.
    void StartTHETimer();
    // Only while Timer1 runs: stop it, stop the watch, show the final time.
    void StopTHETimer();
    [[nodiscard]] bool running() const;

private:
    // Timer1's tick: failures are ignored, the tick has no error report.
    void onTick();

    Tool& display_;
    Timer& timer_;
    std::size_t tickId_;
};

}  // namespace qv
