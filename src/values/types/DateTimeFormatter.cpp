#include "values/types/DateTimeFormatter.h"

#include <cmath>
#include <cstdio>

#include "toolkit/DaySerial.h"
#include "toolkit/Failure.h"
#include "values/types/DateSerial.h"

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

// A number with at least `width` digits, zero-padded; never negative here.
void put(std::string& out, int n, int width = 1) {
    char digits[12];
    int len = 0;
    auto v = static_cast<unsigned>(n);
    do {
        digits[len++] = static_cast<char>('0' + v % 10);
        v /= 10;
    } while (v != 0);
    for (int i = len; i < width; ++i) out += '0';
    while (len > 0) out += digits[--len];
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

std::string DateTimeFormatter::dateText(const Parts& p) {
    std::string s;
    s.reserve(10);
    put(s, p.month);
    s += '/';
    put(s, p.day);
    s += '/';
    put(s, p.year, 4);
    return s;
}

std::string DateTimeFormatter::timeText(const Parts& p) const {
    std::string s;
    s.reserve(11);
    const bool full = twentyFourHour();
    put(s, full ? p.hour : (p.hour % 12 == 0 ? 12 : p.hour % 12), full ? 2 : 1);
    s += ':';
    put(s, p.minute, 2);
    s += ':';
    put(s, p.second, 2);
    if (!full) s += p.hour < 12 ? " AM" : " PM";
    return s;
}

std::string DateTimeFormatter::shortDate(double serial) const { return dateText(split(serial)); }

std::string DateTimeFormatter::longDate(double serial) const {
    const Parts p = split(serial);
    return print("%s, %s %d, %04d", kDays[p.weekday], kMonths[p.month - 1], p.day, p.year);
}

std::string DateTimeFormatter::shortTime(double serial) const {
    const Parts p = split(serial);
    std::string s;
    s.reserve(5);
    put(s, p.hour, 2);
    s += ':';
    put(s, p.minute, 2);
    return s;
}

std::string DateTimeFormatter::longTime(double serial) const { return timeText(split(serial)); }

std::string DateTimeFormatter::generalDate(double serial) const {
    const Parts p = split(serial);
    const bool hasTime = p.hour != 0 || p.minute != 0 || p.second != 0;
    if (std::trunc(serial) == 0.0 && hasTime) return timeText(p);
    if (!hasTime) return dateText(p);
    return dateText(p) + " " + timeText(p);
}

const DateTimeFormatter& DateTimeFormatter::current() {
    static const DateTimeFormatter english;
    const auto& f = installed();
    return f ? *f : english;
}

void DateTimeFormatter::install(std::unique_ptr<DateTimeFormatter> formatter) { installed() = std::move(formatter); }

}  // namespace qv
