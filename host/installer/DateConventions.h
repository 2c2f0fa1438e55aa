#pragma once
// How the user's locale writes dates, for the DateFormats rows of a new
// store: the order of day, month and year, their separator, a 12- or
// 24-hour clock and the first day of the week. Only these follow the
// locale; month and day names in the rows stay English, since the rows
// are the store's and a team store is shared across languages. An
// English US locale, C and POSIX keep the program's own defaults.

#include <cstdint>
#include <string>

namespace qv {

class DateConventions {
public:
    // Date orders, as the drop-down date's style numbers them.
    enum Order : int16_t { MonthDayYear = 0, DayMonthYear = 1, YearMonthDay = 2 };

    Order order = MonthDayYear;
    std::string separator = "/";
    bool twentyFourHour = false;
    int16_t firstDay = 1;  // 0 Sunday to 6 Saturday

    // The conventions of a locale name such as "de_DE.UTF-8" or "en_GB";
    // a language the table doesn't know keeps the defaults, save for the
    // first day of the week, which follows the territory.
    [[nodiscard]] static DateConventions forLocale(const std::string& name);
    // The locale dates are written in: LC_ALL, else LC_TIME, else LANG.
    [[nodiscard]] static std::string timeLocale();
    [[nodiscard]] static DateConventions fromEnvironment() { return forLocale(timeLocale()); }

    bool operator==(const DateConventions&) const = default;
};

}  // namespace qv
