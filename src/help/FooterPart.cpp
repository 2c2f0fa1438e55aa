#include "help/FooterPart.h"

#include "values/DateTimeFormatter.h"

namespace qv {

std::string footerPart(const std::string& stored, double now) {
    const DateTimeFormatter& f = DateTimeFormatter::current();
    if (stored == "--Short Date--") return f.shortDate(now);
    if (stored == "--Long Date--") return f.longDate(now);
    if (stored == "--Date Time--") return f.shortDate(now) + " " + f.shortTime(now);
    if (stored == "--Long Date and Time--") return f.longDate(now) + " " + f.longTime(now);
    if (stored == "Page Number" || stored == "<#>") return kPageNumField;
    return stored;
}

}  // namespace qv
