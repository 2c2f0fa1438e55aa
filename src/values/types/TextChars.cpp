#include "values/types/TextChars.h"

namespace qv {

namespace {
bool isContinuation(char c) { return (static_cast<unsigned char>(c) & 0xC0) == 0x80; }
}  // namespace

std::size_t charCount(std::string_view text) {
    std::size_t n = 0;
    for (char c : text) n += !isContinuation(c);
    return n;
}

std::size_t charOffset(std::string_view text, std::size_t index) {
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (isContinuation(text[i])) continue;
        if (index-- == 0) return i;
    }
    return std::string_view::npos;
}

std::string midChars(std::string_view text, std::size_t start, std::size_t length) {
    if (start == 0 || length == 0) return {};
    const std::size_t from = charOffset(text, start - 1);
    if (from == std::string_view::npos) return {};
    const std::size_t to = charOffset(text, start - 1 + length);
    return std::string(text.substr(from, to == std::string_view::npos ? std::string_view::npos : to - from));
}

}  // namespace qv
