#include "kit/QtDateTimeFormatter.h"

#include <cstdio>

namespace qv {

// The date alone: a local QDateTime asks the system's time zone on every
// construction, which a schedule of thousands of rows cannot afford.
QDate QtDateTimeFormatter::dateOf(double serial) {
    const Parts p = split(serial);
    return {p.year, p.month, p.day};
}

QtDateTimeFormatter::QtDateTimeFormatter(QLocale locale)
    : locale_(std::move(locale)),
      twelveHour_(locale_.timeFormat(QLocale::ShortFormat).contains(QLatin1Char('a'), Qt::CaseInsensitive)) {}

std::string QtDateTimeFormatter::longDate(double serial) const {
    return locale_.toString(dateOf(serial), QLocale::LongFormat).toStdString();
}

std::string QtDateTimeFormatter::longTime(double serial) const {
    if (twelveHour_) return DateTimeFormatter::longTime(serial);
    const Parts p = split(serial);
    char text[16];
    std::snprintf(text, sizeof text, "%02d:%02d:%02d", p.hour, p.minute, p.second);
    return text;
}

}  // namespace qv
