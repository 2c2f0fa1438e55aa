#include "values/types/Value.h"

#include <charconv>
#include <cmath>
#include <cstdio>
#include <limits>
#include <optional>
#include <string_view>
#include <utility>

#include "toolkit/Failure.h"
#include "values/types/DateSerial.h"
#include "values/types/Digits.h"

namespace qv {

namespace {

constexpr int32_t kInvalidUseOfNull = 94;

// The platform's date range: 1 January 100 to 31 December 9999.
constexpr double kMinDateSerial = -657434.0;
constexpr double kMaxDateSerial = 2958465.99999999;

[[noreturn]] void throwNull() {
    throw Failure(kInvalidUseOfNull, "Invalid use of Null");
}
[[noreturn]] void throwMismatch() {
    throw Failure(err::TypeMismatch, "Type mismatch");
}
[[noreturn]] void throwOverflow() {
    throw Failure(err::Overflow, "Overflow");
}

bool isBlank(char c) {
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

std::string_view trim(std::string_view s) {
    while (!s.empty() && isBlank(s.front())) s.remove_prefix(1);
    while (!s.empty() && isBlank(s.back())) s.remove_suffix(1);
    return s;
}

bool equalsNoCase(std::string_view a, std::string_view b) {
    if (a.size() != b.size()) return false;
    for (size_t i = 0; i < a.size(); ++i) {
        char x = a[i];
        char y = b[i];
        if (x >= 'A' && x <= 'Z') x = static_cast<char>(x - 'A' + 'a');
        if (y >= 'A' && y <= 'Z') y = static_cast<char>(y - 'A' + 'a');
        if (x != y) return false;
    }
    return true;
}

// ---------------------------------------------------------------------------
// Text conversions. Each is a small free function so that a shared conversion
// module can take their place without touching the Value logic below.
// ---------------------------------------------------------------------------

// "True" / "False" in any case, blanks around.
std::optional<bool> parseBoolWord(std::string_view text) {
    text = trim(text);
    if (equalsNoCase(text, "true")) return true;
    if (equalsNoCase(text, "false")) return false;
    return std::nullopt;
}

// Blanks, an optional sign, digits with "," thousands separators, an optional
// "." fraction and an optional exponent, blanks.
std::optional<double> parseNumberText(std::string_view text) {
    text = trim(text);
    std::string clean;
    clean.reserve(text.size());
    size_t i = 0;
    if (i < text.size() && (text[i] == '+' || text[i] == '-')) {
        if (text[i] == '-') clean.push_back('-');
        ++i;
    }
    size_t digits = 0;
    for (; i < text.size(); ++i) {
        const char c = text[i];
        if (c >= '0' && c <= '9') {
            clean.push_back(c);
            ++digits;
        } else if (c == ',') {
            // A thousands separator: only between digits of the whole part.
            if (digits == 0) return std::nullopt;
        } else {
            break;
        }
    }
    if (i < text.size() && text[i] == '.') {
        clean.push_back('.');
        for (++i; i < text.size() && text[i] >= '0' && text[i] <= '9'; ++i) {
            clean.push_back(text[i]);
            ++digits;
        }
    }
    if (digits == 0) return std::nullopt;
    if (i < text.size() && (text[i] == 'e' || text[i] == 'E')) {
        clean.push_back('e');
        ++i;
        if (i < text.size() && (text[i] == '+' || text[i] == '-')) clean.push_back(text[i++]);
        size_t expDigits = 0;
        for (; i < text.size() && text[i] >= '0' && text[i] <= '9'; ++i) {
            clean.push_back(text[i]);
            ++expDigits;
        }
        if (expDigits == 0) return std::nullopt;
    }
    if (i != text.size()) return std::nullopt;
    double out = 0.0;
    const auto res = std::from_chars(clean.data(), clean.data() + clean.size(), out);
    if (res.ec == std::errc::result_out_of_range) throwOverflow();
    if (res.ec != std::errc() || res.ptr != clean.data() + clean.size()) return std::nullopt;
    return out;
}

// The shortest text that reads back as the same double: "1.5", "10", "1E+21".
std::string formatDouble(double d) {
    if (std::isnan(d)) return "NaN";
    if (std::isinf(d)) return d > 0 ? "Infinity" : "-Infinity";
    if (d == 0.0) return "0";
    char buf[64];
    const auto res = std::to_chars(buf, buf + sizeof buf, d);
    std::string s(buf, res.ptr);
    for (char& c : s)
        if (c == 'e') c = 'E';
    return s;
}

// The general-date form: "M/D/YYYY h:mm:ss AM/PM"; date only when the time
// is midnight, time only when the day part is 0.
std::string formatGeneralDate(double serial) {
    if (!std::isfinite(serial)) serial = 0.0;
    const double whole = std::trunc(serial);
    int64_t day = static_cast<int64_t>(whole);
    int64_t sec = std::llround(std::fabs(serial - whole) * 86400.0);
    if (sec >= 86400) {
        day += 1;
        sec -= 86400;
    }
    const CivilTime c = dateserial::toCivil(static_cast<double>(day));
    char date[32];
    std::snprintf(date, sizeof date, "%d/%d/%04d", c.month, c.day, c.year);
    const int hour = static_cast<int>(sec / 3600);
    const int minute = static_cast<int>(sec / 60 % 60);
    const int second = static_cast<int>(sec % 60);
    char time[32];
    std::snprintf(time, sizeof time, "%d:%02d:%02d %s", hour % 12 == 0 ? 12 : hour % 12, minute, second,
                  hour < 12 ? "AM" : "PM");
    if (day == 0) return time;
    if (sec == 0) return date;
    return std::string(date) + " " + time;
}

// Reads "M/D/YYYY", "h:mm[:ss] [AM|PM]" or both, separated by blanks.
std::optional<double> parseGeneralDate(std::string_view text) {
    text = trim(text);
    size_t i = 0;
    auto number = [&](int& out, size_t maxDigits) -> size_t {
        int32_t v = 0;
        const size_t n = readDigits(text, i, maxDigits, v);
        i += n;
        out = v;
        return n;
    };
    auto skipBlanks = [&] {
        while (i < text.size() && isBlank(text[i])) ++i;
    };
    bool haveDate = false;
    int month = 0, day = 0, year = 0;
    bool haveTime = false;
    int hour = 0, minute = 0, second = 0;

    const size_t slash = text.find('/');
    if (slash != std::string_view::npos) {
        if (number(month, 2) == 0 || i >= text.size() || text[i] != '/') return std::nullopt;
        ++i;
        if (number(day, 2) == 0 || i >= text.size() || text[i] != '/') return std::nullopt;
        ++i;
        const size_t yearDigits = number(year, 4);
        if (yearDigits == 0 || yearDigits == 3) return std::nullopt;
        if (yearDigits <= 2) year += year < 30 ? 2000 : 1900;
        haveDate = true;
        skipBlanks();
    }
    if (i < text.size()) {
        if (number(hour, 2) == 0 || i >= text.size() || text[i] != ':') return std::nullopt;
        ++i;
        if (number(minute, 2) != 2) return std::nullopt;
        if (i < text.size() && text[i] == ':') {
            ++i;
            if (number(second, 2) != 2) return std::nullopt;
        }
        skipBlanks();
        if (i < text.size()) {
            const std::string_view rest = text.substr(i);
            const bool am = equalsNoCase(rest, "AM");
            const bool pm = equalsNoCase(rest, "PM");
            if (!am && !pm) return std::nullopt;
            if (hour < 1 || hour > 12) return std::nullopt;
            if (am && hour == 12) hour = 0;
            if (pm && hour != 12) hour += 12;
            i = text.size();
        }
        haveTime = true;
    }
    if (!haveDate && !haveTime) return std::nullopt;
    if (!haveDate) {
        month = 12;
        day = 30;
        year = 1899;
    }
    const CivilTime t{year, month, day, hour, minute, second, 0};
    if (!dateserial::isValid(t)) return std::nullopt;
    return dateserial::fromCivil(t);
}

// A date in text: the store's ISO form or the general-date form.
std::optional<double> parseDateText(std::string_view text) {
    if (auto iso = dateserial::fromIso(text)) return iso;
    return parseGeneralDate(text);
}

// ---------------------------------------------------------------------------

double roundHalfEven(double d) {
    return std::nearbyint(d);
}

template <typename Int>
Int roundToInt(double d) {
    if (std::isnan(d)) throwOverflow();
    const double r = roundHalfEven(d);
    if (r < static_cast<double>(std::numeric_limits<Int>::min()) ||
        r > static_cast<double>(std::numeric_limits<Int>::max()))
        throwOverflow();
    return static_cast<Int>(r);
}

// A text as a number: the number forms, or "True"/"False" as -1/0.
double textToNumber(const std::string& s) {
    if (auto d = parseNumberText(s)) return *d;
    if (auto b = parseBoolWord(s)) return *b ? -1.0 : 0.0;
    throwMismatch();
}

double checkedDate(double serial) {
    if (!std::isfinite(serial) || serial < kMinDateSerial || serial > kMaxDateSerial) throwOverflow();
    return serial;
}

}  // namespace

bool Value::toBool() const {
    switch (kind()) {
        case Kind::Null:
            throwNull();
        case Kind::Bool:
            return std::get<bool>(v_);
        case Kind::Int16:
            return std::get<int16_t>(v_) != 0;
        case Kind::Int32:
            return std::get<int32_t>(v_) != 0;
        case Kind::Double:
            return std::get<double>(v_) != 0.0;
        case Kind::Date:
            return std::get<Date>(v_).serial != 0.0;
        case Kind::Text: {
            const auto& s = std::get<std::string>(v_);
            if (auto b = parseBoolWord(s)) return *b;
            if (auto d = parseNumberText(s)) return *d != 0.0;
            throwMismatch();
        }
    }
    throwMismatch();
}

double Value::toDouble() const {
    switch (kind()) {
        case Kind::Null:
            throwNull();
        case Kind::Bool:
            return std::get<bool>(v_) ? -1.0 : 0.0;
        case Kind::Int16:
            return std::get<int16_t>(v_);
        case Kind::Int32:
            return std::get<int32_t>(v_);
        case Kind::Double:
            return std::get<double>(v_);
        case Kind::Date:
            return std::get<Date>(v_).serial;
        case Kind::Text:
            return textToNumber(std::get<std::string>(v_));
    }
    throwMismatch();
}

int16_t Value::toInt16() const {
    switch (kind()) {
        case Kind::Null:
            throwNull();
        case Kind::Bool:
            return std::get<bool>(v_) ? int16_t{-1} : int16_t{0};
        case Kind::Int16:
            return std::get<int16_t>(v_);
        case Kind::Int32: {
            const int32_t i = std::get<int32_t>(v_);
            if (i < INT16_MIN || i > INT16_MAX) throwOverflow();
            return static_cast<int16_t>(i);
        }
        default:
            return roundToInt<int16_t>(toDouble());
    }
}

int32_t Value::toInt32() const {
    switch (kind()) {
        case Kind::Null:
            throwNull();
        case Kind::Bool:
            return std::get<bool>(v_) ? -1 : 0;
        case Kind::Int16:
            return std::get<int16_t>(v_);
        case Kind::Int32:
            return std::get<int32_t>(v_);
        default:
            return roundToInt<int32_t>(toDouble());
    }
}

Date Value::toDate() const {
    switch (kind()) {
        case Kind::Null:
            throwNull();
        case Kind::Date:
            return std::get<Date>(v_);
        case Kind::Text: {
            if (auto d = parseDateText(std::get<std::string>(v_))) return Date{*d};
            throwMismatch();
        }
        default:
            return Date{checkedDate(toDouble())};
    }
}

std::string Value::toText() && {
    if (auto* text = std::get_if<std::string>(&v_)) return std::move(*text);
    return std::as_const(*this).toText();
}

std::string Value::toText() const& {
    switch (kind()) {
        case Kind::Null:
            return {};
        case Kind::Bool:
            return std::get<bool>(v_) ? "True" : "False";
        case Kind::Int16:
            return std::to_string(std::get<int16_t>(v_));
        case Kind::Int32:
            return std::to_string(std::get<int32_t>(v_));
        case Kind::Double:
            return formatDouble(std::get<double>(v_));
        case Kind::Date:
            return formatGeneralDate(std::get<Date>(v_).serial);
        case Kind::Text:
            return std::get<std::string>(v_);
    }
    return {};
}

}  // namespace qv
