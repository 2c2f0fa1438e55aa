#include "kit/QtDateTimeFormatter.h"

#include <QDateTime>

namespace qv {

QDateTime QtDateTimeFormatter::toDateTime(double serial) {
    const Parts p = split(serial);
    return {QDate(p.year, p.month, p.day), QTime(p.hour, p.minute, p.second)};
}

std::string QtDateTimeFormatter::shortDate(double serial) const {
    return locale_.toString(toDateTime(serial).date(), QLocale::ShortFormat).toStdString();
}

std::string QtDateTimeFormatter::longDate(double serial) const {
    return locale_.toString(toDateTime(serial).date(), QLocale::LongFormat).toStdString();
}

std::string QtDateTimeFormatter::shortTime(double serial) const {
    // The short time is a 24-hour clock whatever the locale.
    return toDateTime(serial).time().toString(QStringLiteral("HH:mm")).toStdString();
}

std::string QtDateTimeFormatter::longTime(double serial) const {
    return locale_.toString(toDateTime(serial).time(), QLocale::LongFormat).toStdString();
}

}  // namespace qv
