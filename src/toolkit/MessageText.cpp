#include "toolkit/MessageText.h"

namespace qv {

std::string cutForMessage(std::string_view text, std::size_t limit) {
    std::size_t chars = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if ((static_cast<unsigned char>(text[i]) & 0xC0) == 0x80) continue;  // inside a character
        if (chars++ == limit) return std::string(text.substr(0, i)) + "\u2026";
    }
    return std::string(text);
}

}  // namespace qv
