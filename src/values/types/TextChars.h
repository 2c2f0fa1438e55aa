#pragma once
// Character positions in UTF-8 text: lengths and positions count
// characters, not bytes, as the dialogs' rules count them.

#include <cstddef>
#include <string>
#include <string_view>

namespace qv {

[[nodiscard]] std::size_t charCount(std::string_view text);
// Byte offset of the character at a 0-based index; npos past the end.
[[nodiscard]] std::size_t charOffset(std::string_view text, std::size_t index);
// Up to length characters from the 1-based position start; empty past the end.
[[nodiscard]] std::string midChars(std::string_view text, std::size_t start, std::size_t length);

}  // namespace qv
