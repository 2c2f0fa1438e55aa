#include "values/settings/DateFormats.h"

#include <algorithm>

#include "session/globals/SessionGlobals.h"
#include "store/ErrorPath.h"
#include "store/clsSettings.h"
#include "toolkit/DateBox.h"
#include "values/types/Convert.h"
#include "values/settings/SettingsSection.h"
#include "values/types/TextChars.h"

namespace qv {

namespace {

constexpr const char* kModule = "m_Task";

std::string dayLettersAt(std::initializer_list<std::size_t> positions) {
    const std::string& letters = g().DateFormats[datefmt::DayLetters];
    std::string out;
    for (std::size_t p : positions) out += midChars(letters, p, 1) + ",";
    out.pop_back();
    return out;
}

void readDateFormats() {
    clsSettings reader;
    SettingsSection section(reader, "DateFormats");
    if (section.count() < 1) return;
    const auto& keys = dateFormatKeys();
    auto& formats = g().DateFormats;
    for (Recordset& rows = section.rows(); !rows.EOF_(); rows.MoveNext()) {
        const auto key = std::find(keys.begin(), keys.end(), section.text("SetSettingName"));
        if (key != keys.end()) formats[static_cast<std::size_t>(key - keys.begin())] = section.text("SetSettingValue");
    }
}

void configure(DateBox& box) {
    const auto& formats = g().DateFormats;
    box.setSeparator(formats[datefmt::DDSep]);
    box.setMonthStyle(toInteger(formats[datefmt::DDMonth]));
    box.setDateStyle(toInteger(formats[datefmt::DDFormat]));
    box.setDayLetters(formats[datefmt::DayLetters]);
    box.setFirstDayOfWeek(toInteger(formats[datefmt::WeekStartDay]));
    box.setMonthNames(monthList());
    box.setDayNames(dayList());
}

}  // namespace

const std::vector<std::string>& dateFormatKeys() {
    static const std::vector<std::string> keys = [] {
        std::vector<std::string> k;
        for (int m = 1; m <= 12; ++m) k.push_back("Month" + std::to_string(m));
        for (int d = 1; d <= 7; ++d) k.push_back("Day" + std::to_string(d));
        for (const char* name : {"DayLetters", "WeekStartDay", "DDFormat", "DDMonth", "DDSep", "D5Format",
                                 "D5Start", "D5End", "D5Prime", "D5NonPrime", "WMFormat", "WMHeading", "WMDate",
                                 "CalWeekends", "CalDaysColor", "CalWeekendColor", "HoursInDay", "ApptColor",
                                 "ApptDoneColor", "ApptOutlook", "HoursColor"})
            k.emplace_back(name);
        return k;
    }();
    return keys;
}

bool LoadDateFormatSettings() {
    return trap(kModule, "LoadDateFormatSettings", [] { readDateFormats(); });
}

bool assignDateFormats(const std::vector<DateBox*>& pickers, const char* module) {
    return trap(module, "assignDateFormats", [&] {
        for (DateBox* box : pickers)
            if (box) configure(*box);
    });
}

std::string monthList() {
    const auto& formats = g().DateFormats;
    std::string list;
    for (int m = 0; m < 11; ++m) list += formats[datefmt::Month1 + m] + ",";
    return list + formats[datefmt::Month1 + 11];
}

std::string dayList() {
    const auto& formats = g().DateFormats;
    std::string list = formats[datefmt::Day7];
    for (int d = 0; d < 6; ++d) list += ";" + formats[datefmt::Day1 + d];
    return list;
}

std::string MakeSundayDataLetters() { return dayLettersAt({13, 1, 3, 5, 7, 9, 11}); }

std::string MakeMondayLetters() { return dayLettersAt({3, 5, 7, 9, 11, 13, 1}); }

}  // namespace qv
