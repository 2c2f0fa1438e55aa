#include "toolkit/DateBox.h"

#include <utility>

#include "toolkit/DaySerial.h"

namespace qv {

namespace {
std::vector<std::string> split(const std::string& s, char sep) {
    std::vector<std::string> parts;
    std::size_t start = 0;
    while (true) {
        const std::size_t at = s.find(sep, start);
        parts.push_back(s.substr(start, at - start));
        if (at == std::string::npos) return parts;
        start = at + 1;
    }
}

// The first n characters of UTF-8 text.
std::string firstChars(const std::string& s, std::size_t n) {
    std::size_t i = 0;
    for (std::size_t count = 0; i < s.size() && count < n; ++count) {
        ++i;
        while (i < s.size() && (static_cast<unsigned char>(s[i]) & 0xC0) == 0x80) ++i;
    }
    return s.substr(0, i);
}
// The day after 9999-12-31: no date reaches it.
constexpr double kPastLastDay = 2958466.0;
}  // namespace

DateBox::DateBox(std::string name) : name_(std::move(name)) {}

void DateBox::setValue(double serial) {
    if (value_ == serial) return;
    value_ = serial;
    Changed();
}

void DateBox::userSetValue(double serial) {
    if (value_ == serial) return;
    setValue(serial);
    Change();
}

std::string DateBox::monthName(int32_t m) const {
    const auto names = split(monthNames_, ',');
    if (m < 1 || m > static_cast<int32_t>(names.size())) return {};
    return names[static_cast<std::size_t>(m - 1)];
}

std::string DateBox::monthText(int32_t m) const {
    const std::string name = monthName(m);
    if (monthStyle_ == MonthNumber || name.empty()) return std::to_string(m);
    return monthStyle_ == MonthShortName ? firstChars(name, 3) : name;
}

std::string DateBox::text() const {
    if (!hasDate() || !(value_ < kPastLastDay)) return {};
    const auto d = DaySerial::toCivil(value_);
    const std::string day = std::to_string(d.day);
    const std::string month = monthText(d.month);
    const std::string year = std::to_string(d.year);
    const std::string& s = separator_;
    switch (dateStyle_) {
        case DayMonthYear:
            return day + s + month + s + year;
        case YearMonthDay:
            return year + s + month + s + day;
        default:
            return month + s + day + s + year;
    }
}

void DateBox::setMonthNames(const std::string& list) {
    monthNames_ = list;
    Changed();
}

void DateBox::setDayNames(const std::string& list) {
    dayNames_ = list;
    Changed();
}

void DateBox::setSeparator(const std::string& s) {
    separator_ = s;
    Changed();
}

void DateBox::setDateStyle(int16_t s) {
    dateStyle_ = s;
    Changed();
}

void DateBox::setMonthStyle(int16_t s) {
    monthStyle_ = s;
    Changed();
}

void DateBox::setDayLetters(const std::string& letters) {
    dayLetters_ = letters;
    Changed();
}

void DateBox::setFirstDayOfWeek(int16_t d) {
    firstDayOfWeek_ = d;
    Changed();
}

}  // namespace qv
