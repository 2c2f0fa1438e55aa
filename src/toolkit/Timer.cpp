#include "toolkit/Timer.h"

#include <algorithm>
#include <vector>

#include "toolkit/Clock.h"
#include "toolkit/Ports.h"

namespace qv {

namespace {
std::vector<Timer*>& registry() {
    static std::vector<Timer*> timers;
    return timers;
}

bool registered(const Timer* t) {
    const auto& r = registry();
    return std::find(r.begin(), r.end(), t) != r.end();
}

std::optional<uint32_t> tickNow() {
    if (!ports().clock) return std::nullopt;
    return ports().clock->tickCount();
}
}  // namespace

Timer::Timer(std::string name) : name_(std::move(name)) {
    registry().push_back(this);
}

Timer::~Timer() {
    auto& r = registry();
    r.erase(std::remove(r.begin(), r.end(), this), r.end());
}

void Timer::arm() {
    const auto now = tickNow();
    armed_ = now.has_value();
    if (armed_) due_ = *now + static_cast<uint32_t>(interval_);
}

void Timer::setInterval(int32_t ms) {
    interval_ = std::max(ms, 0);
    arm();
}

void Timer::setEnabled(bool e) {
    if (enabled_ == e) return;
    enabled_ = e;
    if (e) arm();
}

int64_t Timer::msUntilDue(uint32_t now) {
    if (!armed_) arm();
    // The tick count wraps; the difference read as signed stays right.
    const auto diff = static_cast<int32_t>(due_ - now);
    return std::max<int64_t>(diff, 0);
}

void Timer::fireDue() {
    const auto now = tickNow();
    if (!now) return;
    const auto snapshot = registry();
    for (Timer* t : snapshot) {
        // A handler may have destroyed or stopped a timer further on.
        if (!registered(t) || !t->waiting() || t->msUntilDue(*now) > 0) continue;
        t->due_ = *now + static_cast<uint32_t>(t->interval_);
        t->Tick();
    }
}

std::optional<int64_t> Timer::msUntilNextDue() {
    const auto now = tickNow();
    if (!now) return std::nullopt;
    std::optional<int64_t> best;
    for (Timer* t : registry()) {
        if (!t->waiting()) continue;
        const int64_t ms = t->msUntilDue(*now);
        if (!best || ms < *best) best = ms;
    }
    return best;
}

int32_t Timer::activeCount() {
    const auto& r = registry();
    return static_cast<int32_t>(
        std::count_if(r.begin(), r.end(), [](const Timer* t) { return t->waiting(); }));
}

}  // namespace qv
