#pragma once
// The named date and time formats as the user's locale writes them.

#include <QLocale>

#include "values/DateTimeFormatter.h"

namespace qv {

class QtDateTimeFormatter : public DateTimeFormatter {
public:
    explicit QtDateTimeFormatter(QLocale locale = QLocale::system()) : locale_(std::move(locale)) {}

    [[nodiscard]] std::string shortDate(double serial) const override;
    [[nodiscard]] std::string longDate(double serial) const override;
    [[nodiscard]] std::string shortTime(double serial) const override;
    [[nodiscard]] std::string longTime(double serial) const override;

private:
    [[nodiscard]] static QDateTime toDateTime(double serial);

    QLocale locale_;
};

}  // namespace qv
