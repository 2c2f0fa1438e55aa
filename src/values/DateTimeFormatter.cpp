#include "values/DateTimeFormatter.h"

#include <cmath>
#include <cstdio>

#include "toolkit/DaySerial.h"
#include "toolkit/Failure.h"
#include "values/DateSerial.h"

namespace qv {

namespace {

constexpr double kFirstSerial = -657434.0;  // 100-01-01
constexpr double kLastSerial = 2958466.0;   // 10000-01-01, excluded

constexpr const char* kMonths[] = {"January", "February", "March",     "April",   "May",      "June",
                                   "July",    "August",   "September", "October", "November", "December"};
constexpr const char* kDays[] = {"Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"};

std::unique_ptr<DateTimeFormatter>& installed() {
    static std::unique_ptr<DateTimeFormatter> formatter;
    return formatter;
}

template <typename... Args>
std::string print(const char* format, Args... args) {
    char buf[96];
    std::snprintf(buf, sizeof buf, format, args...);
    return buf;
}

}  // namespace

DateTimeFormatter::Parts DateTimeFormatter::split(double serial) {
    if (!(serial > kFirstSerial - 1.0 && serial < kLastSerial)) throw Failure(err::Overflow, "Overflow");
    // Formats show whole seconds.
    const CivilTime t = dateserial::toCivil(serial + (serial < 0 ? -0.5 : 0.5) / 86400.0);
    const double day = static_cast<double>(dateserial::dayNumber(t.year, t.month, t.day));
    return {t.year, t.month, t.day, DaySerial::weekday(day), t.hour, t.minute, t.second};
}

std::string DateTimeFormatter::shortDate(double serial) const {
    const Parts p = split(serial);
    return print("%d/%d/%04d", p.month, p.day, p.year);
}

std::string DateTimeFormatter::longDate(double serial) const {
    const Parts p = split(serial);
    return print("%s, %s %d, %04d", kDays[p.weekday], kMonths[p.month - 1], p.day, p.year);
}

std::string DateTimeFormatter::shortTime(double serial) const {
    const Parts p = split(serial);
    return print("%02d:%02d", p.hour, p.minute);
}

std::string DateTimeFormatter::longTime(double serial) const {
    const Parts p = split(serial);
    const int h12 = p.hour % 12 == 0 ? 12 : p.hour % 12;
    return print("%d:%02d:%02d %s", h12, p.minute, p.second, p.hour < 12 ? "AM" : "PM");
}

std::string DateTimeFormatter::generalDate(double serial) const {
    const Parts p = split(serial);
    const bool hasTime = p.hour != 0 || p.minute != 0 || p.second != 0;
    if (std::trunc(serial) == 0.0 && hasTime) return longTime(serial);
    if (!hasTime) return shortDate(serial);
    return shortDate(serial) + " " + longTime(serial);
}

const DateTimeFormatter& DateTimeFormatter::current() {
    static const DateTimeFormatter english;
    const auto& f = installed();
    return f ? *f : english;
}

void DateTimeFormatter::install(std::unique_ptr<DateTimeFormatter> formatter) { installed() = std::move(formatter); }

}  // namespace qv
