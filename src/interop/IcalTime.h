#pragma once
// Store times (local date serials) and calendar times. Times are written in
// UTC; read, a UTC time or one with a time zone is turned into local time,
// a floating time is taken as local time as it stands, and a date alone is
// that day's midnight.

#include <libical/ical.h>

#include <optional>

namespace qv::icaltime {

// A local serial as a UTC time, to the second.
[[nodiscard]] icaltimetype utcOf(double serial);
// The local serial of a time read from a property of component c (its
// TZID resolved against the file's VTIMEZONEs or the system's zones);
// nothing for an impossible date or time.
[[nodiscard]] std::optional<double> localOf(icalproperty* p, icalcomponent* c);
// Whether two serials name the same second.
[[nodiscard]] bool sameSecond(double a, double b);

}  // namespace qv::icaltime
