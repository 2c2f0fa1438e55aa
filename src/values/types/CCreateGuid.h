#pragma once
// New keys: random (version 4) GUIDs written as 36 upper-case hexadecimal
// characters with dashes, no braces.

#include <cstdint>
#include <string>

namespace qv {

class CCreateGuid {
public:
    // Throws Failure("CCreateGuid component failure") when no randomness is to be had.
    [[nodiscard]] static std::string guid();
    // The hexadecimal digits of value, left-padded with "0" to width, and a
    // "-" behind them when asked.
    [[nodiscard]] static std::string PadHex(uint64_t value, int width, bool addDash = false);
};

}  // namespace qv
