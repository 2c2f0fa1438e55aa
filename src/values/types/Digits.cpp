#include "values/types/Digits.h"

#include <algorithm>
#include <charconv>

namespace qv {

std::size_t readDigits(std::string_view text, std::size_t at, std::size_t maxDigits, int32_t& out) {
    if (at >= text.size() || text[at] < '0' || text[at] > '9') return 0;
    const char* first = text.data() + at;
    const char* last = text.data() + std::min(text.size(), at + maxDigits);
    int32_t value = 0;
    const auto [stop, ec] = std::from_chars(first, last, value);
    if (ec != std::errc()) return 0;
    out = value;
    return static_cast<std::size_t>(stop - first);
}

std::optional<int64_t> wholeNumber(std::string_view text) {
    int64_t value = 0;
    const char* last = text.data() + text.size();
    const auto [stop, ec] = std::from_chars(text.data(), last, value);
    if (ec != std::errc() || stop != last) return std::nullopt;
    return value;
}

}  // namespace qv
