#pragma once
// Upper case of UTF-8 text for the Latin, Greek and Cyrillic letters; other
// characters pass unchanged. Locale-free, so keys compare the same anywhere.

#include <string>
#include <string_view>

namespace qv {

class TextCase {
public:
    [[nodiscard]] static std::string upper(std::string_view text);
    [[nodiscard]] static char32_t upper(char32_t c);
};

}  // namespace qv
