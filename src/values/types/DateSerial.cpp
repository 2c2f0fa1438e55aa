#include "values/types/DateSerial.h"

#include "toolkit/DaySerial.h"
#include "values/types/Digits.h"

#include <cmath>
#include <cstdio>

namespace qv::dateserial {

namespace {

int64_t floorDiv(int64_t a, int64_t b) {
    return a / b - ((a % b != 0) && ((a < 0) != (b < 0)));
}

void civilFromDay(int64_t day, CivilTime& t) {
    const auto c = DaySerial::toCivil(static_cast<double>(day));
    t.year = c.year;
    t.month = c.month;
    t.day = c.day;
}

// Splits a serial into its calendar day number and the milliseconds of its
// time of day, rounded, with a carry into the next day.
void split(double serial, int64_t& day, int64_t& ms) {
    if (!std::isfinite(serial)) serial = 0.0;
    const double whole = std::trunc(serial);
    day = static_cast<int64_t>(whole);
    ms = std::llround(std::fabs(serial - whole) * static_cast<double>(kMsPerDay));
    if (ms >= kMsPerDay) {
        day += 1;
        ms -= kMsPerDay;
    }
}

bool isLeap(int64_t y) {
    return (y % 4 == 0 && y % 100 != 0) || y % 400 == 0;
}

// A small reader over the ISO text.
struct Reader {
    std::string_view s;
    size_t i = 0;
    bool atEnd() const { return i >= s.size(); }
    bool eat(char c) {
        if (i < s.size() && s[i] == c) {
            ++i;
            return true;
        }
        return false;
    }
    // Reads min..max digits.
    bool digits(size_t min, size_t max, int32_t& out) {
        int32_t v = 0;
        const size_t n = readDigits(s, i, max, v);
        i += n;
        out = v;
        return n >= min;
    }
};

bool isBlank(char c) {
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

// The form the store writes, "yyyy-mm-ddThh:mm:ss.fff", read by place: a
// long schedule holds thousands of them. Any other text is left to the
// general reader.
bool readStoreForm(std::string_view s, CivilTime& t, int32_t& ms) {
    if (s.size() != 23 || s[4] != '-' || s[7] != '-' || (s[10] != 'T' && s[10] != ' ') || s[13] != ':' ||
        s[16] != ':' || s[19] != '.')
        return false;
    // Each number is read and its digits checked in the same pass.
    uint32_t notDigit = 0;
    const auto number = [s, &notDigit](size_t at, size_t n) {
        uint32_t v = 0;
        for (size_t i = at; i < at + n; ++i) {
            const uint32_t d = static_cast<uint32_t>(static_cast<unsigned char>(s[i])) - '0';
            notDigit |= static_cast<uint32_t>(d > 9);
            v = v * 10 + d;
        }
        return static_cast<int32_t>(v);
    };
    CivilTime read;
    read.year = number(0, 4);
    read.month = number(5, 2);
    read.day = number(8, 2);
    read.hour = number(11, 2);
    read.minute = number(14, 2);
    read.second = number(17, 2);
    const int32_t millisecond = number(20, 3);
    if (notDigit != 0) return false;
    t = read;
    ms = millisecond;
    return true;
}

}  // namespace

int64_t dayNumber(int32_t year, int32_t month, int32_t day) {
    return DaySerial::fromCivil(year, month, day);
}

int32_t daysInMonth(int32_t year, int32_t month) {
    static constexpr int32_t kDays[12] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    if (month < 1 || month > 12) return 0;
    return month == 2 && isLeap(year) ? 29 : kDays[month - 1];
}

bool isValid(const CivilTime& t) {
    return t.month >= 1 && t.month <= 12 && t.day >= 1 && t.day <= daysInMonth(t.year, t.month) &&
           t.hour >= 0 && t.hour < 24 && t.minute >= 0 && t.minute < 60 && t.second >= 0 && t.second < 60 &&
           t.millisecond >= 0 && t.millisecond < 1000;
}

CivilTime toCivil(double serial) {
    int64_t day = 0;
    int64_t ms = 0;
    split(serial, day, ms);
    CivilTime t;
    civilFromDay(day, t);
    t.millisecond = static_cast<int32_t>(ms % 1000);
    ms /= 1000;
    t.second = static_cast<int32_t>(ms % 60);
    ms /= 60;
    t.minute = static_cast<int32_t>(ms % 60);
    t.hour = static_cast<int32_t>(ms / 60);
    return t;
}

double fromCivil(int32_t year, int32_t month, int32_t day, int32_t hour, int32_t minute, int32_t second,
                 int32_t millisecond) {
    int64_t dn = dayNumber(year, month, day);
    int64_t ms = ((static_cast<int64_t>(hour) * 60 + minute) * 60 + second) * 1000 + millisecond;
    dn += floorDiv(ms, kMsPerDay);
    ms -= floorDiv(ms, kMsPerDay) * kMsPerDay;
    const double frac = static_cast<double>(ms) / static_cast<double>(kMsPerDay);
    return dn >= 0 ? static_cast<double>(dn) + frac : static_cast<double>(dn) - frac;
}

double fromCivil(const CivilTime& t) {
    return fromCivil(t.year, t.month, t.day, t.hour, t.minute, t.second, t.millisecond);
}

double roundToMillisecond(double serial) {
    if (!std::isfinite(serial)) return serial;
    return fromCivil(toCivil(serial));
}

std::string toIso(double serial) {
    const CivilTime t = toCivil(serial);
    char buf[48];
    std::snprintf(buf, sizeof buf, "%04d-%02d-%02dT%02d:%02d:%02d.%03d", t.year, t.month, t.day, t.hour,
                  t.minute, t.second, t.millisecond);
    return buf;
}

std::optional<double> fromIso(std::string_view text) {
    while (!text.empty() && isBlank(text.front())) text.remove_prefix(1);
    while (!text.empty() && isBlank(text.back())) text.remove_suffix(1);
    CivilTime t;
    if (int32_t ms = 0; readStoreForm(text, t, ms)) {
        if (!isValid(t)) return std::nullopt;
        return fromCivil(t.year, t.month, t.day, t.hour, t.minute, t.second, ms);
    }
    Reader r{text};
    if (!r.digits(4, 4, t.year) || !r.eat('-') || !r.digits(1, 2, t.month) || !r.eat('-') ||
        !r.digits(1, 2, t.day))
        return std::nullopt;
    int32_t extraMs = 0;
    if (!r.atEnd()) {
        if (!r.eat('T') && !r.eat(' ')) return std::nullopt;
        while (r.eat(' ')) {
        }
        if (!r.digits(1, 2, t.hour) || !r.eat(':') || !r.digits(2, 2, t.minute)) return std::nullopt;
        if (r.eat(':')) {
            if (!r.digits(2, 2, t.second)) return std::nullopt;
            if (r.eat('.') || r.eat(',')) {
                // Any number of fraction digits, rounded to the millisecond.
                double frac = 0.0;
                double scale = 0.1;
                size_t n = 0;
                while (!r.atEnd() && r.s[r.i] >= '0' && r.s[r.i] <= '9') {
                    frac += (r.s[r.i] - '0') * scale;
                    scale /= 10.0;
                    ++r.i;
                    ++n;
                }
                if (n == 0) return std::nullopt;
                extraMs = static_cast<int32_t>(std::lround(frac * 1000.0));
            }
        }
        r.eat('Z');
        if (!r.atEnd()) return std::nullopt;
    }
    if (!isValid(t)) return std::nullopt;
    return fromCivil(t.year, t.month, t.day, t.hour, t.minute, t.second, extraMs);
}

}  // namespace qv::dateserial
