#include "values/settings/StopwatchDisplay.h"

#include "toolkit/Timer.h"
#include "toolkit/Tool.h"
#include "values/settings/Stopwatch.h"

namespace qv {

namespace {
constexpr int32_t kTickMs = 1000;
}  // namespace

StopwatchDisplay::StopwatchDisplay(Tool& display, Timer& timer1)
    : display_(display), timer_(timer1), tickId_(timer1.Tick.connect([this] { onTick(); })) {}

StopwatchDisplay::~StopwatchDisplay() { timer_.Tick.disconnect(tickId_); }

void StopwatchDisplay::StartTHETimer() {
    display_.setText("00:00:00");
    startTimer();
    timer_.setInterval(kTickMs);
    timer_.setEnabled(true);
}

void StopwatchDisplay::StopTHETimer() {
    if (!timer_.enabled()) return;
    timer_.setEnabled(false);
    StopTimer();
    display_.setText(ElapsedTime());
}

bool StopwatchDisplay::running() const { return timer_.enabled(); }

void StopwatchDisplay::onTick() {
    try {
        display_.setText(ElapsedTime());
    } catch (...) {
        // Ignored: a failing refresh must not stop the dialog.
    }
}

}  // namespace qv
