#include "toolkit/TextFill.h"

namespace qv {

std::string fill(std::string_view text, std::initializer_list<std::string_view> parts) {
    std::string out;
    out.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char next = i + 1 < text.size() ? text[i + 1] : '\0';
        const auto n = static_cast<std::size_t>(next - '0');
        if (text[i] == '%' && next >= '1' && next <= '9' && n <= parts.size()) {
            out += parts.begin()[n - 1];
            ++i;
        } else {
            out += text[i];
        }
    }
    return out;
}

}  // namespace qv
