#pragma once
// The real clock: local time of the machine and a monotonic tick.

#include "Export.h"
#include "toolkit/Clock.h"

namespace qv {

class QV_EXPORT SystemClock : public Clock {
public:
    [[nodiscard]] double now() const override;
    [[nodiscard]] uint32_t tickCount() const override;
    [[nodiscard]] double secondsSinceMidnight() const override;
};

}  // namespace qv
