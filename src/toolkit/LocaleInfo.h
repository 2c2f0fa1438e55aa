#pragma once
// The locale port: what the user's locale says about units.

#include <cstdint>

#include "Export.h"

namespace qv {

class QV_EXPORT LocaleInfo {
public:
    virtual ~LocaleInfo() = default;
    // 0 metric, 1 US units.
    [[nodiscard]] virtual int32_t measurementSystem() const = 0;
};

}  // namespace qv
