#pragma once
// Reads the unsigned decimal number of at most maxDigits digits that starts
// at text[at] (std::from_chars, no sign taken); gives the number of digits
// read, 0 when text[at] is no digit, and leaves out as it was then.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace qv {

[[nodiscard]] std::size_t readDigits(std::string_view text, std::size_t at, std::size_t maxDigits, int32_t& out);

// The whole number that is the whole of text ("-" allowed, nothing else
// around it); nothing when text is anything else or out of range.
[[nodiscard]] std::optional<int64_t> wholeNumber(std::string_view text);

}  // namespace qv
