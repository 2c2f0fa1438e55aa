#include "values/settings/TimeValues.h"

#include <charconv>
#include <cmath>
#include <string_view>

#include "session/globals/SessionGlobals.h"
#include "store/ErrorPath.h"
#include "toolkit/Clock.h"
#include "toolkit/Failure.h"
#include "toolkit/Ports.h"
#include "toolkit/Translate.h"
#include "toolkit/Ui.h"
#include "values/types/Convert.h"
#include "values/types/DateTimeFormatter.h"
#include "values/types/TextChars.h"

namespace qv {

namespace {

constexpr const char* kModule = "m_Task";
constexpr size_t kD5Start = 25, kD5End = 26, kHoursInDay = 35;
constexpr auto npos = std::string::npos;

// --- text helpers: the grammar's letters are ASCII, lengths count characters.

std::string trimSpaces(std::string_view t) {
    while (!t.empty() && t.front() == ' ') t.remove_prefix(1);
    while (!t.empty() && t.back() == ' ') t.remove_suffix(1);
    return std::string(t);
}

std::string upperAscii(std::string s) {
    for (char& c : s)
        if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
    return s;
}

bool endsWith(std::string_view s, std::string_view tail) {
    return s.size() >= tail.size() && s.substr(s.size() - tail.size()) == tail;
}

bool isColonForm(std::string_view s) { return charCount(s) == 3 && s.front() == ':'; }

// The first ':' is the very last character (an empty text included).
bool colonIsLast(std::string_view s) {
    const size_t colon = s.find(':');
    return colon == npos ? s.empty() : colon == s.size() - 1;
}

std::string before(std::string_view s, char c) { return trimSpaces(s.substr(0, s.find(c))); }

// --- whole-number arithmetic as 32-bit Long arithmetic.

int64_t checkedLong(int64_t v) {
    if (v < INT32_MIN || v > INT32_MAX) throw Failure(err::Overflow, "Overflow");
    return v;
}

double divide(double a, double b) {
    if (b == 0.0) throw Failure(err::DivisionByZero, "Division by zero");
    return a / b;
}

int64_t modulo(int64_t a, int64_t b) {
    if (b == 0) throw Failure(err::DivisionByZero, "Division by zero");
    return a % b;
}

// --- the day's length.

int64_t dayMinutes() {
    const std::string& hours = g().DateFormats[kHoursInDay];
    if (hours == "24") return 1440;
    return roundLong(toSingle(hours) * 60.0f);
}

struct DayRule {
    int64_t dayMinutes;
    int64_t dayLength;  // the formatter's day
    int64_t modulus;    // what makes a whole number of days
};

// A working day other than 0 or 24 hours takes the day view's window as
// its length in minutes, while weeks stay on dayMinutes.
DayRule dayRule() {
    const auto& formats = g().DateFormats;
    const int64_t minutes = dayMinutes();
    // The usual day is told by its text; any other reads as a number.
    const int32_t h = formats[kHoursInDay] == "24" ? 24 : toLong(formats[kHoursInDay]);
    if (h == 0 || h == 24) return {minutes, minutes, 1440};
    const int64_t window = checkedLong(int64_t{toLong(formats[kD5End])} - toLong(formats[kD5Start]));
    return {minutes, window, window};
}

// --- the formatter's pieces.

// A whole number of at least two digits, its sign before them.
void appendTwoDigits(std::string& out, int32_t r) {
    char buf[16];
    char* p = buf;
    const int64_t a = r < 0 ? -int64_t{r} : r;
    if (r < 0) *p++ = '-';
    if (a < 10) *p++ = '0';
    p = std::to_chars(p, buf + sizeof buf, a).ptr;
    out.append(buf, p);
}

std::string countText(double count) { return singleText(toSingleFloat(count)); }

// "H:MM" of what is left of m after base minutes; under an hour "0:MM".
std::string restText(double m, double base) {
    const int32_t r = roundLong(m - base);
    std::string text;
    if (r < 60) {
        text = "0:";
        appendTwoDigits(text, r);
        return text;
    }
    const double h = std::trunc((m - base) / 60.0);
    char hours[16];
    text.assign(hours, std::to_chars(hours, hours + sizeof hours, roundLong(h)).ptr);
    text += ':';
    appendTwoDigits(text, roundLong(m - (base + 60.0 * h)));
    return text;
}

std::string daysText(double m, const DayRule& rule) {
    const auto length = static_cast<double>(rule.dayLength);
    if (toSingleFloat(divide(m, length)) == 1.0f) return "1 Day";
    if (modulo(roundLong(m), rule.modulus) == 0) return countText(std::trunc(m / length)) + " Days";
    const double d = std::trunc(m / length);
    return countText(d) + "D " + restText(m, d * length);
}

std::string weeksText(double m, const DayRule& rule, int64_t weekLength) {
    const auto week = static_cast<double>(weekLength);
    const auto day = static_cast<double>(rule.dayMinutes);
    if (toSingleFloat(divide(m, week)) == 1.0f) return "1 Week";
    if (modulo(roundLong(m), weekLength) == 0) return countText(std::trunc(m / week)) + " Weeks";
    const double w = std::trunc(m / week);
    const double d = std::trunc((m - w * 7.0 * day) / day);
    return countText(w) + "W " + countText(d) + "D " + restText(m, (w * 7.0 + d) * day);
}

std::string formatMinutes(double minutes) {
    const double m = std::fabs(minutes);
    if (m == 0.0) return "0:00";
    const DayRule rule = dayRule();
    const int64_t weekLength = checkedLong(7 * rule.dayMinutes);
    if (m <= static_cast<double>(rule.dayLength)) return restText(m, 0.0);
    if (m <= static_cast<double>(weekLength)) return daysText(m, rule);
    return weeksText(m, rule, weekLength);
}

// --- the parser.

int32_t timesWhole(const std::string& count, int64_t factor) {
    return static_cast<int32_t>(checkedLong(int64_t{toLong(count)} * factor));
}

int32_t readMinutes(const std::string& text) {
    const std::string s = upperAscii(trimSpaces(text));
    const int64_t day = dayMinutes();
    const int64_t week = checkedLong(7 * day);
    if (s.empty()) return 0;
    if (isColonForm(s)) return toLong(s.substr(1));
    if (colonIsLast(s)) return 0;
    if (endsWith(s, "DAYS") || endsWith(s, "DAY")) return timesWhole(before(s, 'D'), day);
    if (endsWith(s, "WEEKS") || endsWith(s, "WEEK")) return timesWhole(before(s, 'W'), week);
    // Only the count before the first "D" is read: "2D 3:07" is two days.
    if (s.find('D') != npos) return timesWhole(before(s, 'D'), day);
    if (s.find('W') != npos) return timesWhole(before(s, 'W'), week);
    const size_t colon = s.find(':');
    if (colon == npos) return toLong(s);
    // A clock text "hh:mm:ss" reads as nothing.
    if (s.find(':', colon + 1) != npos) return 0;
    return static_cast<int32_t>(
        checkedLong(int64_t{toLong(s.substr(0, colon))} * 60 + toLong(s.substr(colon + 1))));
}

// --- the checkers.

// The count of a day or week form, if that form is there and unreadable.
bool countUnreadable(const std::string& s) {
    char letter = 0;
    if (endsWith(s, "DAYS") || endsWith(s, "DAY")) letter = 'D';
    else if (endsWith(s, "WEEKS") || endsWith(s, "WEEK")) letter = 'W';
    else if (s.find('D') != npos) letter = 'D';
    else if (s.find('W') != npos) letter = 'W';
    return letter != 0 && !tryToLong(before(s, letter)).has_value();
}

bool checkTypedTime(const std::string& text) {
    std::string s = text;
    if (charCount(s) == 8) s = s.substr(0, charOffset(s, 5));  // "hh:mm:ss" reads as "hh:mm"
    if (s.empty()) return false;
    s = upperAscii(trimSpaces(s));
    if (isColonForm(s) || colonIsLast(s) || !countUnreadable(s)) return true;
    ui().msgBox(tr("Unable to read that time value. Resetting."), vbInformation, kProgramTitle);
    return false;
}

// The time cell's day form: the ':' is searched from the day count times
// 1440 as a character position, which lies past the text's end for any
// real text, and the cut before it then has a negative length.
bool checkDayCell(const std::string& s, size_t dayAt) {
    const int64_t start = checkedLong(int64_t{toLong(s.substr(0, dayAt))} * 1440);
    if (start < 1) throw Failure(err::InvalidProcedureCall, "Invalid procedure call or argument");
    const size_t from = charOffset(s, static_cast<size_t>(start - 1));
    const size_t colon = from == npos ? npos : s.find(':', from);
    if (colon == npos || colon <= dayAt)
        throw Failure(err::InvalidProcedureCall, "Invalid procedure call or argument");
    toLong(s.substr(dayAt + 1, colon - dayAt - 1));
    toLong(s.substr(colon + 1));
    return true;
}

bool checkCell(const std::string& s) {
    if (isColonForm(s)) {
        toLong(s.substr(1));
        return true;
    }
    if (s == "0:00" || s == "1 Day" || colonIsLast(s)) return false;
    if (endsWith(s, "Days")) return true;
    const size_t dayAt = s.find('D');
    if (dayAt != npos) return checkDayCell(s, dayAt);
    const size_t colon = s.find(':');
    if (colon == npos) return tryToLong(s).has_value();
    toLong(s.substr(0, colon));
    toLong(s.substr(colon + 1));
    return true;
}

bool readsAsClockTime(const std::string& text) {
    const std::string t = trimSpaces(text);
    if (t.empty() || t.front() < '0' || t.front() > '9') return false;
    // Joined to today in the form the reader takes, whatever the user's locale.
    return readsAsDate(DateTimeFormatter().shortDate(clock().now()) + " " + text);
}

}  // namespace

std::string SetTimeFormat(double minutes) {
    return trap(kModule, "SetTimeFormat", [&] { return formatMinutes(minutes); });
}

int32_t FormatCTasTime(const std::string& text) {
    try {
        return readMinutes(text);
    } catch (const Failure&) {
        return 0;
    }
}

bool CheckCTasTime(const std::string& text) {
    return trap(kModule, "CheckCTasTime", [&] { return checkTypedTime(text); });
}

bool IsTimeValue(const std::string& text) {
    return trap(kModule, "IsTimeValue", [&] { return checkCell(text); });
}

bool IsTime(const std::string& text) {
    return trap(kModule, "IsTime", [&] { return readsAsClockTime(text); });
}

}  // namespace qv
