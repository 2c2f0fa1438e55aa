#pragma once
// The named date and time formats after the user's locale. Texts the
// program reads back (times in tools, short dates) keep forms its own
// reader takes; only the 12- or 24-hour clock follows the locale. The long
// date, which is only read by people, is the locale's own.

#include <QLocale>

#include "Export.h"
#include "values/DateTimeFormatter.h"

namespace qv {

class QV_EXPORT QtDateTimeFormatter : public DateTimeFormatter {
public:
    explicit QtDateTimeFormatter(QLocale locale = QLocale::system()) : locale_(std::move(locale)) {}

    [[nodiscard]] std::string longDate(double serial) const override;
    [[nodiscard]] std::string shortTime(double serial) const override;
    [[nodiscard]] std::string longTime(double serial) const override;

private:
    [[nodiscard]] static QDateTime toDateTime(double serial);
    [[nodiscard]] bool twelveHour() const;

    QLocale locale_;
};

}  // namespace qv
