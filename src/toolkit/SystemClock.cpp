#include "toolkit/SystemClock.h"

#include <chrono>
#include <ctime>

#include "toolkit/DaySerial.h"

namespace qv {

namespace {
struct LocalNow {
    std::tm tm{};
    double fraction = 0.0;  // of the current second
};

LocalNow localNow() {
    using namespace std::chrono;
    const auto t = system_clock::now();
    const auto secs = time_point_cast<seconds>(t);
    LocalNow out;
    const std::time_t tt = system_clock::to_time_t(secs);
    localtime_r(&tt, &out.tm);
    out.fraction = duration<double>(t - secs).count();
    if (out.fraction < 0) out.fraction = 0;
    return out;
}

double secondsOfDay(const LocalNow& n) {
    return n.tm.tm_hour * 3600.0 + n.tm.tm_min * 60.0 + n.tm.tm_sec + n.fraction;
}
}  // namespace

double SystemClock::now() const {
    const LocalNow n = localNow();
    const int32_t day = DaySerial::fromCivil(n.tm.tm_year + 1900, n.tm.tm_mon + 1, n.tm.tm_mday);
    return day + secondsOfDay(n) / 86400.0;
}

uint32_t SystemClock::tickCount() const {
    using namespace std::chrono;
    const auto ms = duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
    return static_cast<uint32_t>(ms);
}

double SystemClock::secondsSinceMidnight() const {
    return secondsOfDay(localNow());
}

}  // namespace qv
