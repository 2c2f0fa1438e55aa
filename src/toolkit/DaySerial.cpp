#include "toolkit/DaySerial.h"

#include <cmath>

namespace qv {

namespace {
// Days from 1970-01-01 to 1899-12-30.
constexpr int64_t kEpochShift = 25569;

int64_t floorDiv(int64_t a, int64_t b) {
    return a / b - ((a % b != 0) && ((a < 0) != (b < 0)));
}

// Howard Hinnant's days-from-civil, counted from 1970-01-01.
int64_t daysFromCivil(int64_t y, int64_t m, int64_t d) {
    y -= m <= 2;
    const int64_t era = floorDiv(y, 400);
    const int64_t yoe = y - era * 400;
    const int64_t doy = (153 * (m + (m > 2 ? -3 : 9)) + 2) / 5 + d - 1;
    const int64_t doe = yoe * 365 + yoe / 4 - yoe / 100 + doy;
    return era * 146097 + doe - 719468;
}
}  // namespace

int32_t DaySerial::fromCivil(int32_t year, int32_t month, int32_t day) {
    return static_cast<int32_t>(daysFromCivil(year, month, day) + kEpochShift);
}

DaySerial::Civil DaySerial::toCivil(double serial) {
    const int64_t z = static_cast<int64_t>(std::floor(serial)) - kEpochShift + 719468;
    const int64_t era = floorDiv(z, 146097);
    const int64_t doe = z - era * 146097;
    const int64_t yoe = (doe - doe / 1460 + doe / 36524 - doe / 146096) / 365;
    const int64_t doy = doe - (365 * yoe + yoe / 4 - yoe / 100);
    const int64_t mp = (5 * doy + 2) / 153;
    const int64_t d = doy - (153 * mp + 2) / 5 + 1;
    const int64_t m = mp < 10 ? mp + 3 : mp - 9;
    const int64_t y = yoe + era * 400 + (m <= 2);
    return {static_cast<int32_t>(y), static_cast<int32_t>(m), static_cast<int32_t>(d)};
}

int32_t DaySerial::weekday(double serial) {
    // Serial 1 (1899-12-31) was a Sunday.
    const int64_t day = static_cast<int64_t>(std::floor(serial));
    return static_cast<int32_t>(((day - 1) % 7 + 7) % 7);
}

}  // namespace qv
