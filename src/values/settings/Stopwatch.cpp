#include "values/settings/Stopwatch.h"

#include <cstdint>
#include <cstdio>

#include "session/globals/SessionGlobals.h"
#include "store/ErrorPath.h"
#include "toolkit/Clock.h"
#include "toolkit/Failure.h"
#include "toolkit/Ports.h"

namespace qv {

namespace {

constexpr const char* kModule = "m_Task";

// The tick as the platform's signed 32-bit count.
int32_t tick() { return static_cast<int32_t>(clock().tickCount()); }

[[noreturn]] void overflow() { throw Failure(err::Overflow, "Overflow"); }

int32_t elapsedMs() {
    const auto& globals = g();
    const int64_t end = globals.StopwatchStop != 0 ? globals.StopwatchStop : tick();
    const int64_t d = end - globals.StopwatchStart;
    if (d < INT32_MIN || d > INT32_MAX) overflow();
    return static_cast<int32_t>(d);
}

// The parts through the time format "hh:mm:ss"; what is no clock time stands as built.
std::string clockText(int32_t h, int32_t m, int32_t s) {
    char buf[48];
    const bool isClock = h >= 0 && h < 24 && m >= 0 && s >= 0;
    std::snprintf(buf, sizeof buf, isClock ? "%02d:%02d:%02d" : "%d:%d:%d", h, m, s);
    return buf;
}

std::string elapsedText() {
    const int32_t s = elapsedMs() / 1000;
    if (s < 60) return clockText(0, 0, s);
    const int32_t minutes = s / 60;
    if (minutes > INT16_MAX) overflow();  // the minutes are held in 16 bits
    if (minutes < 60) return clockText(0, minutes, s % 60);
    return clockText(minutes / 60, minutes % 60, s % 60);
}

}  // namespace

bool startTimer() {
    return trap(kModule, "startTimer", [] {
        g().StopwatchStart = tick();
        g().StopwatchStop = 0;
    });
}

bool StopTimer() {
    return trap(kModule, "StopTimer", [] { g().StopwatchStop = tick(); });
}

std::string ElapsedTime() { return trap(kModule, "ElapsedTime", [] { return elapsedText(); }); }

}  // namespace qv
