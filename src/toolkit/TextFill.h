#pragma once
// Fills the places %1 to %9 of a translated text, so that a catalogue can
// put the parts of a sentence in its own language's order.

#include <initializer_list>
#include <string>
#include <string_view>

#include "Export.h"

namespace qv {

// The text with each %N replaced by the N-th part (counted from 1); a %N
// with no part, and every other %, stay as they stand. Parts are not
// searched again, so a part holding "%1" stays as it is.
QV_EXPORT std::string fill(std::string_view text, std::initializer_list<std::string_view> parts);

}  // namespace qv
