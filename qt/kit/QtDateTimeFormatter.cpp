#include "kit/QtDateTimeFormatter.h"

#include <QDateTime>

namespace qv {

QDateTime QtDateTimeFormatter::toDateTime(double serial) {
    const Parts p = split(serial);
    return {QDate(p.year, p.month, p.day), QTime(p.hour, p.minute, p.second)};
}

bool QtDateTimeFormatter::twelveHour() const {
    return locale_.timeFormat(QLocale::ShortFormat).contains(QLatin1Char('a'), Qt::CaseInsensitive);
}

std::string QtDateTimeFormatter::longDate(double serial) const {
    return locale_.toString(toDateTime(serial).date(), QLocale::LongFormat).toStdString();
}

std::string QtDateTimeFormatter::shortTime(double serial) const {
    // The short time is a 24-hour clock whatever the locale.
    return toDateTime(serial).time().toString(QStringLiteral("HH:mm")).toStdString();
}

std::string QtDateTimeFormatter::longTime(double serial) const {
    if (twelveHour()) return DateTimeFormatter::longTime(serial);
    return toDateTime(serial).time().toString(QStringLiteral("HH:mm:ss")).toStdString();
}

}  // namespace qv
