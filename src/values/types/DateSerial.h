#pragma once
// Date serials as the store and the logic use them: days since 1899-12-30,
// the time of day as the fraction. A negative serial counts its days before
// the epoch while its fraction still runs forward in the day (the platform's
// rule: the fraction's sign follows the day), so -1.25 is 1899-12-29 06:00.
// Every conversion rounds to the millisecond.
//
// The store keeps dates as ISO 8601 local text with milliseconds,
// "YYYY-MM-DDTHH:MM:SS.mmm"; reading also takes "YYYY-MM-DD HH:MM:SS",
// "YYYY-MM-DDTHH:MM", "YYYY-MM-DD" and a fraction of 1 to 3 digits.

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace qv {

struct CivilTime {
    int32_t year = 1899;
    int32_t month = 12;
    int32_t day = 30;
    int32_t hour = 0;
    int32_t minute = 0;
    int32_t second = 0;
    int32_t millisecond = 0;
    friend bool operator==(const CivilTime&, const CivilTime&) = default;
};

namespace dateserial {

inline constexpr int64_t kMsPerDay = 86'400'000;

// Days from 1899-12-30 to the calendar date (proleptic Gregorian).
[[nodiscard]] int64_t dayNumber(int32_t year, int32_t month, int32_t day);
// True when the fields name a real date and time of day.
[[nodiscard]] bool isValid(const CivilTime& t);
[[nodiscard]] int32_t daysInMonth(int32_t year, int32_t month);

// Serial -> calendar date and time, rounded to the millisecond.
[[nodiscard]] CivilTime toCivil(double serial);
// Calendar date and time -> serial. The fields are not checked.
[[nodiscard]] double fromCivil(const CivilTime& t);
[[nodiscard]] double fromCivil(int32_t year, int32_t month, int32_t day, int32_t hour = 0, int32_t minute = 0,
                               int32_t second = 0, int32_t millisecond = 0);

// The serial rounded to the millisecond it names (what a round trip through
// the store gives back).
[[nodiscard]] double roundToMillisecond(double serial);

// "YYYY-MM-DDTHH:MM:SS.mmm".
[[nodiscard]] std::string toIso(double serial);
// The ISO forms above; nothing for other text or an impossible date.
[[nodiscard]] std::optional<double> fromIso(std::string_view text);

}  // namespace dateserial
}  // namespace qv
