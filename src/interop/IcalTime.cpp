#include "interop/IcalTime.h"

#include <cmath>
#include <ctime>

#include "values/types/DateSerial.h"

namespace qv::icaltime {

namespace {

double fromUnix(time_t t) {
    std::tm local{};
    localtime_r(&t, &local);
    return dateserial::fromCivil(local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min,
                                 local.tm_sec);
}

bool possible(const icaltimetype& t) {
    CivilTime c{t.year, t.month, t.day, t.is_date ? 0 : t.hour, t.is_date ? 0 : t.minute,
                t.is_date ? 0 : t.second, 0};
    return !icaltime_is_null_time(t) && dateserial::isValid(c);
}

}  // namespace

icaltimetype utcOf(double serial) {
    const CivilTime c = dateserial::toCivil(serial);
    std::tm tm{};
    tm.tm_year = c.year - 1900;
    tm.tm_mon = c.month - 1;
    tm.tm_mday = c.day;
    tm.tm_hour = c.hour;
    tm.tm_min = c.minute;
    tm.tm_sec = c.second;
    tm.tm_isdst = -1;
    return icaltime_from_timet_with_zone(mktime(&tm), 0, icaltimezone_get_utc_timezone());
}

std::optional<double> localOf(icalproperty* p, icalcomponent* c) {
    icaltimetype t = icalproperty_get_datetime_with_component(p, c);
    if (!possible(t)) return std::nullopt;
    if (t.is_date) return dateserial::fromCivil(t.year, t.month, t.day);
    if (icaltime_is_utc(t) || t.zone)
        return fromUnix(icaltime_as_timet_with_zone(t, t.zone ? t.zone : icaltimezone_get_utc_timezone()));
    return dateserial::fromCivil(t.year, t.month, t.day, t.hour, t.minute, t.second);
}

// Calendar times have no fraction of a second: the second a time falls in.
bool sameSecond(double a, double b) {
    auto second = [](double serial) { return static_cast<long long>(std::floor(std::llround(serial * 86'400'000.0) / 1000.0)); };
    return second(a) == second(b);
}

}  // namespace qv::icaltime
