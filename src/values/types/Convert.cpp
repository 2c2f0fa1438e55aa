#include "values/types/Convert.h"

#include <cfloat>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <limits>

#include "toolkit/Failure.h"
#include "values/types/DateSerial.h"
#include "values/types/Digits.h"

namespace qv {

namespace {

[[noreturn]] void typeMismatch() { throw Failure(err::TypeMismatch, "Type mismatch"); }
[[noreturn]] void overflow() { throw Failure(err::Overflow, "Overflow"); }

bool isBlank(char c) { return c == ' ' || c == '\t'; }
bool isDigit(char c) { return c >= '0' && c <= '9'; }

std::string_view trimBlanks(std::string_view t) {
    while (!t.empty() && isBlank(t.front())) t.remove_prefix(1);
    while (!t.empty() && isBlank(t.back())) t.remove_suffix(1);
    return t;
}

// Copies digits into out, skipping thousands separators after the first digit.
size_t takeDigits(std::string_view t, size_t i, std::string& out, bool separators) {
    while (i < t.size() && (isDigit(t[i]) || (separators && t[i] == ',' && !out.empty() && isDigit(out.back())))) {
        if (t[i] != ',') out += t[i];
        ++i;
    }
    return i;
}

// The number in a plain form strtod-like parsers take, or nothing.
std::optional<std::string> normalise(std::string_view text) {
    const std::string_view t = trimBlanks(text);
    std::string out;
    size_t i = 0;
    if (i < t.size() && (t[i] == '+' || t[i] == '-')) {
        if (t[i] == '-') out += '-';
        ++i;
    }
    const size_t signLength = out.size();
    i = takeDigits(t, i, out, true);
    size_t digits = out.size() - signLength;
    if (i < t.size() && t[i] == '.') {
        out += '.';
        const size_t before = out.size();
        i = takeDigits(t, i + 1, out, false);
        digits += out.size() - before;
    }
    if (digits == 0) return std::nullopt;
    if (i < t.size() && (t[i] == 'E' || t[i] == 'e')) {
        out += 'e';
        ++i;
        if (i < t.size() && (t[i] == '+' || t[i] == '-')) out += t[i++];
        const size_t before = out.size();
        i = takeDigits(t, i, out, false);
        if (out.size() == before) return std::nullopt;
    }
    if (i != t.size()) return std::nullopt;
    return out;
}

// Reads a number of one to maxDigits digits at t[i...]; advances i.
std::optional<int32_t> readField(std::string_view t, size_t& i, size_t maxDigits) {
    int32_t v = 0;
    const size_t n = readDigits(t, i, maxDigits, v);
    i += n;
    if (n == 0 || (i < t.size() && isDigit(t[i]))) return std::nullopt;
    return v;
}

void skipBlanks(std::string_view t, size_t& i) {
    while (i < t.size() && isBlank(t[i])) ++i;
}

bool startsWithNoCase(std::string_view t, size_t i, std::string_view word) {
    if (t.size() - i < word.size()) return false;
    for (size_t k = 0; k < word.size(); ++k)
        if ((t[i + k] & ~0x20) != word[k]) return false;
    return true;
}

// "H:MM", "H:MM:SS", either with " AM"/" PM"; the fraction of a day.
std::optional<double> readClock(std::string_view t, size_t& i) {
    auto h = readField(t, i, 2);
    if (!h || i >= t.size() || t[i] != ':') return std::nullopt;
    auto m = readField(t, ++i, 2);
    if (!m || *m > 59) return std::nullopt;
    int32_t s = 0;
    if (i < t.size() && t[i] == ':') {
        auto sec = readField(t, ++i, 2);
        if (!sec || *sec > 59) return std::nullopt;
        s = *sec;
    }
    size_t j = i;
    skipBlanks(t, j);
    const bool am = startsWithNoCase(t, j, "AM"), pm = startsWithNoCase(t, j, "PM");
    if (am || pm) {
        if (*h > 12) return std::nullopt;
        *h = (*h % 12) + (pm ? 12 : 0);
        i = j + 2;
    } else if (*h > 23) {
        return std::nullopt;
    }
    return (*h * 3600 + *m * 60 + s) / 86400.0;
}

// "M/D/YYYY" (a two-digit year reads 1930 to 2029); the day serial.
std::optional<double> readCalendarDate(std::string_view t, size_t& i) {
    auto m = readField(t, i, 2);
    if (!m || i >= t.size() || t[i] != '/') return std::nullopt;
    auto d = readField(t, ++i, 2);
    if (!d || i >= t.size() || t[i] != '/') return std::nullopt;
    const size_t yearStart = ++i;
    auto y = readField(t, i, 4);
    if (!y || (i - yearStart != 2 && i - yearStart != 4)) return std::nullopt;
    if (i - yearStart == 2) *y += *y < 30 ? 2000 : 1900;
    if (*y < 100 || *m < 1 || *m > 12 || *d < 1 || *d > dateserial::daysInMonth(*y, *m)) return std::nullopt;
    return static_cast<double>(dateserial::dayNumber(*y, *m, *d));
}

}  // namespace

double toDouble(std::string_view text) {
    const auto plain = normalise(text);
    if (!plain) typeMismatch();
    double v = 0;
    const auto [ptr, ec] = std::from_chars(plain->data(), plain->data() + plain->size(), v);
    if (ec == std::errc::result_out_of_range) overflow();
    if (ec != std::errc() || ptr != plain->data() + plain->size()) typeMismatch();
    return v;
}

float toSingle(std::string_view text) { return toSingleFloat(toDouble(text)); }
int32_t toLong(std::string_view text) { return roundLong(toDouble(text)); }
int16_t toInteger(std::string_view text) { return roundInteger(toDouble(text)); }

std::optional<double> tryToDouble(std::string_view text) {
    try {
        return toDouble(text);
    } catch (const Failure&) {
        return std::nullopt;
    }
}

std::optional<int32_t> tryToLong(std::string_view text) {
    try {
        return toLong(text);
    } catch (const Failure&) {
        return std::nullopt;
    }
}

namespace {
double roundHalfEven(double x) {
    if (!std::isfinite(x)) overflow();
    const double r = std::round(x);
    // round() takes ties away from zero; a tie goes to the even neighbour.
    if (std::fabs(x - std::trunc(x)) == 0.5 && std::fmod(r, 2.0) != 0.0) return r - std::copysign(1.0, x);
    return r;
}
}  // namespace

int32_t roundLong(double x) {
    const double r = roundHalfEven(x);
    if (r < std::numeric_limits<int32_t>::min() || r > std::numeric_limits<int32_t>::max()) overflow();
    return static_cast<int32_t>(r);
}

int16_t roundInteger(double x) {
    const double r = roundHalfEven(x);
    if (r < std::numeric_limits<int16_t>::min() || r > std::numeric_limits<int16_t>::max()) overflow();
    return static_cast<int16_t>(r);
}

float toSingleFloat(double x) {
    if (std::isnan(x) || std::fabs(x) > FLT_MAX) overflow();
    return static_cast<float>(x);
}

double truncate(double x) { return std::trunc(x); }

std::string singleText(float x) {
    if (x == 0.0f) return "0";
    char buf[32];
    std::snprintf(buf, sizeof buf, "%.7G", static_cast<double>(x));
    return buf;
}

std::optional<double> tryToDate(std::string_view text) {
    const std::string_view t = trimBlanks(text);
    size_t i = 0;
    double serial = 0.0;
    const bool isDate = t.find('/') != std::string_view::npos;
    if (isDate) {
        auto day = readCalendarDate(t, i);
        if (!day) return std::nullopt;
        serial = *day;
        skipBlanks(t, i);
        if (i == t.size()) return serial;
    }
    auto fraction = readClock(t, i);
    if (!fraction || i != t.size()) return std::nullopt;
    return serial + *fraction;
}

bool readsAsDate(std::string_view text) { return tryToDate(text).has_value(); }

}  // namespace qv
