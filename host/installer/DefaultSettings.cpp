#include "installer/DefaultSettings.h"

#include <initializer_list>
#include <string>

#include "installer/DateConventions.h"

namespace qv {

namespace {

struct Entry {
    const char* name;
    const char* value;
    const char* comment = "";
};

// Rows of one section, ordered as they are listed.
void addSection(std::vector<SettingRow>& rows, const char* section, std::initializer_list<Entry> entries) {
    int32_t ord = 1;
    for (const auto& e : entries) rows.push_back({section, e.name, e.value, ord++, e.comment});
}

void addIdentity(std::vector<SettingRow>& rows) {
    addSection(rows, "AppVersion", {{"AppVersion", "10", "Layout of the settings"}});
    addSection(rows, "Spellchecking", {{"SpellCheckOn", "True"}});
    addSection(rows, "UserStuff",
               {{"UserName", ""},
                {"Organisation", ""},
                {"Email", ""},
                {"UserNumber", "1"},
                {"Licence", ""},
                {"Edition", ""}});
    addSection(rows, "OutLookIntegration", {{"Integrate Outlook Tasks", "False"}});
    addSection(rows, "OutlookProfileString", {{"Profile", "NONE", "NONE means no profile"}});
}

// Status index 0 is the done status; 1 to 3 carry fixed words in the dialogs.
void addLists(std::vector<SettingRow>& rows) {
    addSection(rows, "Status",
               {{"STATUS1", "Completed"},
                {"STATUS2", "In Progress"},
                {"STATUS3", "On Hold"},
                {"STATUS4", "Defined"},
                {"STATUS5", "Waiting"},
                {"STATUS6", "Deferred"}});
    addSection(
        rows, "Importance Level",
        {{"IMP1", "Critical"}, {"IMP2", "High"}, {"IMP3", "Medium"}, {"IMP4", "Low"}, {"IMP5", "Minimal"}});
    addSection(rows, "Difficulty",
               {{"DIF1", "Very Hard"},
                {"DIF2", "Hard"},
                {"DIF3", "Moderate"},
                {"DIF4", "Easy"},
                {"DIF5", "Trivial"}});
    addSection(rows, "Time Needed",
               {{"TIM1", "15", "minutes"},
                {"TIM2", "30", "minutes"},
                {"TIM3", "60", "minutes"},
                {"TIM4", "120", "minutes"},
                {"TIM5", "240", "minutes"},
                {"TIM6", "480", "minutes"}});
    addSection(rows, "Points",
               {{"Imp0", "10"},
                {"Imp1", "8"},
                {"Imp2", "6"},
                {"Imp3", "4"},
                {"Imp4", "2"},
                {"Dif0", "10"},
                {"Dif1", "8"},
                {"Dif2", "6"},
                {"Dif3", "4"},
                {"Dif4", "2"},
                {"Short", "1", "up to 10 minutes"},
                {"Medium", "3", "under 120 minutes"},
                {"Long", "5", "120 minutes or more"},
                {"Checklist", "2", "the task has a checklist"},
                {"Schedule", "2", "the task has a schedule"}});
}

// Window geometry in twips. The window state is the fifth value read for
// TASKWINDOW and ETASK, the sixth for TAS (after the splitter position).
// The Task Appointment window reads left before top.
void addWindows(std::vector<SettingRow>& rows) {
    const char* state = "Open Max or Normal, never minimized";
    addSection(rows, "TAS",
               {{"meLeft", "1000", "Left"},
                {"meTop", "2000", "Top"},
                {"meWidth", "9600", "Width"},
                {"meHeight", "7200", "Height"},
                {"meSplit", "2310", "Split"},
                {"WindowState", "0", state}});
    addSection(rows, "TASKWINDOW",
               {{"meTop", "1000", "Top"},
                {"meLeft", "2000", "Left"},
                {"meWidth", "9000", "Width"},
                {"meHeight", "6600", "Height"},
                {"WindowState", "0", state}});
    addSection(rows, "ETASK",
               {{"meTop", "1000", "Top"},
                {"meLeft", "3705", "Left"},
                {"meWidth", "9975", "Width"},
                {"meHeight", "7950", "Height"},
                {"WindowState", "0", state},
                {"meSplit", "2505", "Split"}});
}

// Names stay English whatever the locale; the order, separator, clock and
// first day of the week follow it. D5Format is the day view's clock: 0 for
// 12 hours, 1 for 24.
void addDateFormats(std::vector<SettingRow>& rows, const DateConventions& locale) {
    const std::string weekStart = std::to_string(locale.firstDay);
    const std::string order = std::to_string(locale.order);
    const char* clock = locale.twentyFourHour ? "1" : "0";
    addSection(rows, "DateFormats",
               {{"Month1", "January"},
                {"Month2", "February"},
                {"Month3", "March"},
                {"Month4", "April"},
                {"Month5", "May"},
                {"Month6", "June"},
                {"Month7", "July"},
                {"Month8", "August"},
                {"Month9", "September"},
                {"Month10", "October"},
                {"Month11", "November"},
                {"Month12", "December"},
                {"Day1", "Monday"},
                {"Day2", "Tuesday"},
                {"Day3", "Wednesday"},
                {"Day4", "Thursday"},
                {"Day5", "Friday"},
                {"Day6", "Saturday"},
                {"Day7", "Sunday"},
                {"DayLetters", "S,M,T,W,T,F,S"},
                {"WeekStartDay", weekStart.c_str()},
                {"DDFormat", order.c_str()},
                {"DDMonth", "0"},
                {"DDSep", locale.separator.c_str()},
                {"D5Format", clock},
                {"D5Start", "480", "minutes after midnight"},
                {"D5End", "1020", "minutes after midnight"},
                {"D5Prime", "16777215"},
                {"D5NonPrime", "14737632"},
                {"WMFormat", "0"},
                {"WMHeading", "12632256"},
                {"WMDate", "0"},
                {"CalWeekends", "1"},
                {"CalDaysColor", "0"},
                {"CalWeekendColor", "255"},
                {"HoursInDay", "24"},
                {"ApptColor", "16744576"},
                {"ApptDoneColor", "8421504"},
                {"ApptOutlook", "8454016"},
                {"HoursColor", "0"}});
}

}  // namespace

std::vector<SettingRow> defaultSettings(const DateConventions& locale) {
    std::vector<SettingRow> rows;
    addIdentity(rows);
    addLists(rows);
    addWindows(rows);
    addDateFormats(rows, locale);
    return rows;
}

}  // namespace qv
