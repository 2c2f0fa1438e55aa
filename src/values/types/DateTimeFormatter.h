#pragma once
// The named date and time formats of the platform (short date, long date,
// short time, long time, general date). The base class writes them in
// English; the desktop layer installs a subclass that follows the user's
// locale. Dates are day serials.

#include <memory>
#include <string>

#include "Export.h"

namespace qv {

class QV_EXPORT DateTimeFormatter {
public:
    virtual ~DateTimeFormatter() = default;

    // "1/15/2024"
    [[nodiscard]] std::string shortDate(double serial) const;
    // "Monday, January 15, 2024"
    [[nodiscard]] virtual std::string longDate(double serial) const;
    // "17:45": the platform's short time is a 24-hour clock.
    [[nodiscard]] std::string shortTime(double serial) const;
    // "5:45:00 PM", or "17:45:00" where the clock has 24 hours.
    [[nodiscard]] std::string longTime(double serial) const;
    // Date and long time; the date alone at midnight, the time alone on day 0.
    [[nodiscard]] std::string generalDate(double serial) const;

    // The process-wide formatter; the English one until another is installed.
    static const DateTimeFormatter& current();
    // Installs a formatter; nullptr puts the English one back.
    static void install(std::unique_ptr<DateTimeFormatter> formatter);

protected:
    struct Parts {
        int year, month, day, weekday;  // weekday 0 is Sunday
        int hour, minute, second;
    };
    // Splits a serial; Failure(err::Overflow) outside the years 100 to 9999.
    [[nodiscard]] static Parts split(double serial);
    // Whether the long time has a 24-hour clock (the English one has not).
    [[nodiscard]] virtual bool twentyFourHour() const { return false; }

private:
    // Written digit by digit: a schedule formats thousands of these at once.
    [[nodiscard]] static std::string dateText(const Parts& p);
    [[nodiscard]] std::string timeText(const Parts& p) const;
};

}  // namespace qv
