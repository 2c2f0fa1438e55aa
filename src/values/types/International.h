#pragma once
// What the user's locale says, through the LocaleInfo port.

#include <cstdint>

namespace qv {

// 0 for metric, 1 for US units. Without an installed port the environment
// decides (en_US: 1, else 0).
[[nodiscard]] int32_t getLocalMeasurement();

}  // namespace qv
