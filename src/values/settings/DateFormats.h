#pragma once
// The user's language for dates and the length of the work day: the forty
// texts of g().DateFormats, and how every dialog hands them to its date
// pickers and calendars.

#include <string>
#include <vector>

namespace qv {

class DateBox;

// Positions of g().DateFormats the logic reads.
namespace datefmt {
inline constexpr int Month1 = 0, Day1 = 12, Day7 = 18, DayLetters = 19, WeekStartDay = 20, DDFormat = 21,
                     DDMonth = 22, DDSep = 23, D5Start = 25, D5End = 26, HoursInDay = 35;
}

// The setting names of the forty positions, in order.
const std::vector<std::string>& dateFormatKeys();

// Fills g().DateFormats from the section DateFormats. Names match exactly
// ("month1" is not Month1); absent keys leave their text empty.
bool LoadDateFormatSettings();

// Gives each picker the seven settings. A non-numeric style or week start
// stops there (reported under module), leaving that picker half configured.
bool assignDateFormats(const std::vector<DateBox*>& pickers, const char* module);

// The month list "Month1,...,Month12" and the day list "Day7;Day1;...;Day6".
std::string monthList();
std::string dayList();

// Day letters for calendars that start on Sunday or on Monday.
std::string MakeSundayDataLetters();
std::string MakeMondayLetters();

}  // namespace qv
