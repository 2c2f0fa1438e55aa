#include "toolkit/FakeClock.h"

#include <cmath>

#include "toolkit/Ports.h"
#include "toolkit/Timer.h"

namespace qv {

namespace {
constexpr int64_t kMsPerDay = 86400000;
}

FakeClock::FakeClock() : FakeClock(45306.375) {}

FakeClock::FakeClock(double startSerial) {
    setNow(startSerial);
}

double FakeClock::now() const {
    return static_cast<double>(msSinceEpoch_) / kMsPerDay;
}

double FakeClock::secondsSinceMidnight() const {
    const int64_t ms = ((msSinceEpoch_ % kMsPerDay) + kMsPerDay) % kMsPerDay;
    return static_cast<double>(ms) / 1000.0;
}

void FakeClock::setNow(double serial) {
    msSinceEpoch_ = std::llround(serial * kMsPerDay);
}

void FakeClock::step(int64_t ms) {
    msSinceEpoch_ += ms;
    tick_ += static_cast<uint32_t>(ms);
}

bool FakeClock::installed() const {
    return ports().clock == this;
}

void FakeClock::advance(int64_t ms) {
    if (ms <= 0) return;
    if (!installed()) {
        step(ms);
        return;
    }
    // Walk from one due time to the next, so a periodic timer fires once
    // for every interval that passes.
    int64_t remaining = ms;
    while (true) {
        const auto due = Timer::msUntilNextDue();
        if (!due || *due > remaining) break;
        step(*due);
        remaining -= *due;
        Timer::fireDue();
    }
    step(remaining);
    Timer::fireDue();
}

}  // namespace qv
