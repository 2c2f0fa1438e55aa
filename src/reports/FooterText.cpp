#include "reports/FooterText.h"

#include "session/globals/SessionGlobals.h"
#include "toolkit/TextFill.h"
#include "toolkit/Translate.h"
#include "values/types/DateTimeFormatter.h"

namespace qv {

namespace {

const char* const kShortDate = "--Short Date--";
const char* const kLongDate = "--Long Date--";
const char* const kDateTime = "--Date Time--";
const char* const kLongDateTime = "--Long Date and Time--";

bool isDateTag(const std::string& tag) {
    return tag == kShortDate || tag == kLongDate || tag == kDateTime || tag == kLongDateTime;
}

std::string dateText(const std::string& tag, double now) {
    const auto& f = DateTimeFormatter::current();
    if (tag == kShortDate) return f.shortDate(now);
    if (tag == kLongDate) return f.longDate(now);
    if (tag == kDateTime) return f.shortDate(now) + " " + f.shortTime(now);
    return f.longDate(now) + " " + f.longTime(now);
}

}  // namespace

std::vector<FooterText::Pick> FooterText::picks(double now) {
    return {{kProgramTitle, kTitleTag},
            {tr("--Custom--"), kCustomTag},
            {tr("--Leave Blank--"), kBlankTag},
            {fill(tr("Short date (%1)"), {dateText(kShortDate, now)}), kShortDate},
            {fill(tr("Long date (%1)"), {dateText(kLongDate, now)}), kLongDate},
            {fill(tr("Date and time (%1)"), {dateText(kDateTime, now)}), kDateTime},
            {fill(tr("Long date and time (%1)"), {dateText(kLongDateTime, now)}), kLongDateTime},
            {tr("Page Number"), kPageNumberTag}};
}

std::optional<std::string> FooterText::shownFor(const std::string& stored, double now) {
    if (stored == kTitleTag) return std::string(kProgramTitle);
    if (stored == kPageNumberTag) return std::string(tr("Page Number"));
    if (!isDateTag(stored)) return std::nullopt;
    for (const Pick& p : picks(now))
        if (p.tag == stored) return p.caption;
    return std::nullopt;
}

std::string FooterText::forPrint(const std::string& stored, double now) {
    if (isDateTag(stored)) return dateText(stored, now);
    if (stored == "Page Number" || stored == "<#>") return kPageNumberField;
    return stored;
}

}  // namespace qv
