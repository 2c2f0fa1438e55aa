#include "installer/DateConventions.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <string_view>

#include "toolkit/EnvLocaleInfo.h"

namespace qv {

namespace {

struct Style {
    std::string_view locale;  // a language, or a language and a territory
    DateConventions::Order order;
    std::string_view separator;
    bool twentyFourHour;
};

constexpr auto DMY = DateConventions::DayMonthYear;
constexpr auto YMD = DateConventions::YearMonthDay;

// The short date and the clock of each language, then where a territory
// writes them otherwise; looked up by language and territory first.
constexpr std::array kStyles = std::to_array<Style>({
    {"en_GB", DMY, "/", true},  {"en_IE", DMY, "/", true},  {"en_ZA", YMD, "/", true},
    {"en_CA", YMD, "-", false}, {"en", DMY, "/", false},    {"fr_CA", YMD, "-", true},
    {"fr_CH", DMY, ".", true},  {"it_CH", DMY, ".", true},  {"nl_BE", DMY, "/", true},
    {"zh_TW", YMD, "/", false}, {"zh_HK", DMY, "/", false}, {"de", DMY, ".", true},
    {"ru", DMY, ".", true},     {"uk", DMY, ".", true},     {"be", DMY, ".", true},
    {"pl", DMY, ".", true},     {"cs", DMY, ".", true},     {"sk", DMY, ".", true},
    {"fi", DMY, ".", true},     {"nb", DMY, ".", true},     {"nn", DMY, ".", true},
    {"no", DMY, ".", true},     {"da", DMY, ".", true},     {"is", DMY, ".", true},
    {"tr", DMY, ".", true},     {"ro", DMY, ".", true},     {"hr", DMY, ".", true},
    {"sl", DMY, ".", true},     {"sr", DMY, ".", true},     {"bs", DMY, ".", true},
    {"mk", DMY, ".", true},     {"bg", DMY, ".", true},     {"et", DMY, ".", true},
    {"lv", DMY, ".", true},     {"he", DMY, ".", true},     {"fr", DMY, "/", true},
    {"it", DMY, "/", true},     {"es", DMY, "/", true},     {"pt", DMY, "/", true},
    {"ca", DMY, "/", true},     {"gl", DMY, "/", true},     {"el", DMY, "/", false},
    {"ga", DMY, "/", true},     {"cy", DMY, "/", true},     {"vi", DMY, "/", true},
    {"id", DMY, "/", true},     {"th", DMY, "/", true},     {"ms", DMY, "/", false},
    {"hi", DMY, "/", false},    {"ar", DMY, "/", false},    {"nl", DMY, "-", true},
    {"sv", YMD, "-", true},     {"lt", YMD, "-", true},     {"ja", YMD, "/", true},
    {"zh", YMD, "/", true},     {"ko", YMD, ".", false},    {"hu", YMD, ".", true},
});

// Territories whose week starts on Sunday or on Saturday; elsewhere Monday.
constexpr std::string_view kSundayFirst =
    "AG AS BD BR BS BT BW BZ CA CN CO DM DO ET GT GU HK HN ID IL IN JM JP KE KH KR LA MH MM "
    "MO MT MX MZ NI NP PA PE PH PK PR PT PY SA SG SV TH TT TW UM US VE VI WS YE ZA ZW";
constexpr std::string_view kSaturdayFirst = "AE AF BH DJ DZ EG IQ IR JO KW LY OM QA SD SY";

bool lists(std::string_view territories, std::string_view territory) {
    for (std::size_t at = 0; at + 2 <= territories.size(); at += 3)
        if (territories.substr(at, 2) == territory) return true;
    return false;
}

int16_t firstDayIn(std::string_view territory) {
    if (territory.size() != 2) return 1;
    if (lists(kSundayFirst, territory)) return 0;
    return lists(kSaturdayFirst, territory) ? 6 : 1;
}

const Style* styleOf(std::string_view language, std::string_view territory) {
    const std::string both = std::string(language) + "_" + std::string(territory);
    for (const std::string_view key : {std::string_view(both), language}) {
        const auto it =
            std::find_if(kStyles.begin(), kStyles.end(), [key](const Style& s) { return s.locale == key; });
        if (it != kStyles.end()) return &*it;
    }
    return nullptr;
}

}  // namespace

DateConventions DateConventions::forLocale(const std::string& name) {
    // "language_TERRITORY.codeset@modifier"
    const std::string_view full(name);
    const std::string_view bare = full.substr(0, full.find_first_of(".@"));
    const std::size_t underscore = bare.find('_');
    const std::string_view language = bare.substr(0, underscore);
    const std::string_view territory =
        underscore == std::string_view::npos ? "" : bare.substr(underscore + 1);
    DateConventions c;
    if (language.empty() || language == "C" || language == "POSIX" ||
        (language == "en" && territory == "US") || (language == "en" && territory.empty()))
        return c;
    if (const Style* s = styleOf(language, territory)) {
        c.order = s->order;
        c.separator = s->separator;
        c.twentyFourHour = s->twentyFourHour;
    }
    c.firstDay = firstDayIn(territory);
    return c;
}

std::string DateConventions::timeLocale() {
    const std::string locale = environmentLocale("LC_TIME");
    return locale.empty() ? "C" : locale;
}

}  // namespace qv
