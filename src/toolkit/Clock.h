#pragma once
// The clock port: "now", a monotonic millisecond tick and the seconds since
// midnight. Tests use FakeClock, so nothing waits on real time.

#include <cstdint>

#include "Export.h"

namespace qv {

class QV_EXPORT Clock {
public:
    virtual ~Clock() = default;
    // Local date and time as a day serial (days since 1899-12-30).
    [[nodiscard]] virtual double now() const = 0;
    // Milliseconds since an arbitrary start, wrapping at 2^32.
    [[nodiscard]] virtual uint32_t tickCount() const = 0;
    // Seconds since local midnight, with fractions.
    [[nodiscard]] virtual double secondsSinceMidnight() const = 0;
};

}  // namespace qv
