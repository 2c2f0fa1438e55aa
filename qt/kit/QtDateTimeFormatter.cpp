#include "kit/QtDateTimeFormatter.h"

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

}  // namespace qv
