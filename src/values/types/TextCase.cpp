#include "values/types/TextCase.h"

namespace qv {

namespace {
// Pairs where the capital is even and the small letter odd.
bool evenOddPair(char32_t c) {
    return (c >= 0x100 && c <= 0x12F) || (c >= 0x132 && c <= 0x137) || (c >= 0x14A && c <= 0x177) ||
           (c >= 0x460 && c <= 0x481) || (c >= 0x48A && c <= 0x4BF) || (c >= 0x4D0 && c <= 0x52F);
}
// Pairs where the capital is odd and the small letter even.
bool oddEvenPair(char32_t c) {
    return (c >= 0x139 && c <= 0x148) || (c >= 0x179 && c <= 0x17E);
}

char32_t upperGreek(char32_t c) {
    if (c == 0x3C2) return 0x3A3;  // final sigma
    if ((c >= 0x3B1 && c <= 0x3C1) || (c >= 0x3C3 && c <= 0x3CB)) return c - 32;
    if (c == 0x3AC) return 0x386;
    if (c >= 0x3AD && c <= 0x3AF) return c - 37;
    if (c == 0x3CC) return 0x38C;
    if (c == 0x3CD || c == 0x3CE) return c - 63;
    return c;
}

// Decodes one UTF-8 character at s[i]; a broken sequence reads as its byte.
char32_t decode(std::string_view s, std::size_t& i) {
    const auto b = static_cast<unsigned char>(s[i]);
    const int len = b < 0x80 ? 1 : (b >> 5) == 6 ? 2 : (b >> 4) == 14 ? 3 : (b >> 3) == 30 ? 4 : 0;
    if (len <= 1 || i + static_cast<std::size_t>(len) > s.size()) {
        ++i;
        return b;
    }
    char32_t c = b & (0x7F >> len);
    for (int k = 1; k < len; ++k) {
        const auto cont = static_cast<unsigned char>(s[i + static_cast<std::size_t>(k)]);
        if ((cont & 0xC0) != 0x80) {
            ++i;
            return b;
        }
        c = (c << 6) | (cont & 0x3F);
    }
    i += static_cast<std::size_t>(len);
    return c;
}

void encode(char32_t c, std::string& out) {
    if (c < 0x80) {
        out += static_cast<char>(c);
    } else if (c < 0x800) {
        out += static_cast<char>(0xC0 | (c >> 6));
        out += static_cast<char>(0x80 | (c & 0x3F));
    } else if (c < 0x10000) {
        out += static_cast<char>(0xE0 | (c >> 12));
        out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (c & 0x3F));
    } else {
        out += static_cast<char>(0xF0 | (c >> 18));
        out += static_cast<char>(0x80 | ((c >> 12) & 0x3F));
        out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (c & 0x3F));
    }
}
}  // namespace

char32_t TextCase::upper(char32_t c) {
    if (c >= 'a' && c <= 'z') return c - 32;
    if (c < 0xE0) return c;
    if (c <= 0xFE) return c == 0xF7 ? c : c - 32;
    if (c == 0xFF) return 0x178;
    if (c == 0x131) return 'I';
    if (c == 0x17F) return 'S';
    if (evenOddPair(c)) return c & ~char32_t{1};
    if (oddEvenPair(c)) return (c % 2 == 0) ? c - 1 : c;
    if (c >= 0x3AC && c <= 0x3CE) return upperGreek(c);
    if (c >= 0x430 && c <= 0x44F) return c - 32;
    if (c >= 0x450 && c <= 0x45F) return c - 80;
    return c;
}

std::string TextCase::upper(std::string_view text) {
    std::string out;
    out.reserve(text.size());
    std::size_t i = 0;
    while (i < text.size()) {
        // Keys and most names are plain ASCII: no decoding for them.
        if (const auto b = static_cast<unsigned char>(text[i]); b < 0x80) {
            out.push_back(b >= 'a' && b <= 'z' ? static_cast<char>(b - 32) : static_cast<char>(b));
            ++i;
            continue;
        }
        const std::size_t start = i;
        const char32_t c = decode(text, i);
        const char32_t u = upper(c);
        if (u == c)
            out.append(text.substr(start, i - start));  // keeps broken bytes as they were
        else
            encode(u, out);
    }
    return out;
}

}  // namespace qv
