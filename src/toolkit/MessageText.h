#pragma once
// Texts quoted in a message (a path, a stored value, a description) are cut
// to a readable length, so that a message box stays a sentence whatever the
// text holds.

#include <cstddef>
#include <string>
#include <string_view>

namespace qv {

inline constexpr std::size_t kQuotedLimit = 200;

// The text, or its first limit characters (UTF-8, never cut inside one)
// and an ellipsis.
std::string cutForMessage(std::string_view text, std::size_t limit = kQuotedLimit);

}  // namespace qv
