#pragma once
// Day serials: days since 1899-12-30, the time of day as the fraction.
// The conversions to and from calendar dates that the toolkit needs.

#include <cstdint>

#include "Export.h"

namespace qv {

class QV_EXPORT DaySerial {
public:
    struct Civil {
        int32_t year = 1899, month = 12, day = 30;
    };

    // Whole day number of a calendar date (proleptic Gregorian).
    [[nodiscard]] static int32_t fromCivil(int32_t year, int32_t month, int32_t day);
    // Calendar date of the whole day that holds the serial.
    [[nodiscard]] static Civil toCivil(double serial);
    // The weekday of a serial: 0 Sunday to 6 Saturday.
    [[nodiscard]] static int32_t weekday(double serial);
};

}  // namespace qv
