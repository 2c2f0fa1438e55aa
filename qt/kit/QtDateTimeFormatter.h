#pragma once
// The named date and time formats after the user's locale. Texts the
// program reads back (times in tools, short dates) keep forms its own
// reader takes (the short time is a 24-hour clock whatever the locale);
// only the long time's 12- or 24-hour clock follows the locale. The long
// date, which is only read by people, is the locale's own.

#include <QDate>
#include <QLocale>

#include "Export.h"
#include "values/types/DateTimeFormatter.h"

namespace qv {

class QV_EXPORT QtDateTimeFormatter : public DateTimeFormatter {
public:
    explicit QtDateTimeFormatter(QLocale locale = QLocale::system());

    [[nodiscard]] std::string longDate(double serial) const override;

protected:
    [[nodiscard]] bool twentyFourHour() const override { return !twelveHour_; }

private:
    [[nodiscard]] static QDate dateOf(double serial);

    QLocale locale_;
    bool twelveHour_;  // read once: the locale's time format is built anew on each ask
};

}  // namespace qv
