#pragma once
// The colour chooser port. Colours are 32-bit RGB longs, red in the low byte.

#include <cstdint>
#include <string>

#include "Export.h"

namespace qv {

class QV_EXPORT ColorChooser {
public:
    virtual ~ColorChooser() = default;
    // Asks the user for a colour, starting at initial (-1: none). A non-empty
    // title replaces the chooser's own; center puts it mid-screen. Returns
    // false when the user cancelled.
    virtual bool choose(int32_t initial, const std::string& title, bool center, int32_t& chosen) = 0;
};

}  // namespace qv
