#include "values/types/CCreateGuid.h"

#include <exception>
#include <random>

#include "session/globals/SessionGlobals.h"
#include "toolkit/Failure.h"

namespace qv {

namespace {
// The platform's base for component failures.
constexpr int32_t kObjectError = static_cast<int32_t>(0x80040000u);

std::mt19937_64& engine() {
    // Seeded once per process: the device is slow and may fail.
    static std::mt19937_64 e = [] {
        std::random_device rd;
        std::seed_seq seq{rd(), rd(), rd(), rd(), rd(), rd(), rd(), rd()};
        return std::mt19937_64(seq);
    }();
    return e;
}
}  // namespace

std::string CCreateGuid::PadHex(uint64_t value, int width, bool addDash) {
    static const char* digits = "0123456789ABCDEF";
    std::string hex;
    do {
        hex.insert(hex.begin(), digits[value & 0xF]);
        value >>= 4;
    } while (value != 0);
    if (static_cast<int>(hex.size()) < width)
        hex.insert(0, static_cast<std::size_t>(width) - hex.size(), '0');
    if (addDash) hex += '-';
    return hex;
}

std::string CCreateGuid::guid() {
    uint64_t hi = 0, lo = 0;
    try {
        hi = engine()();
        lo = engine()();
    } catch (const std::exception&) {
        throw Failure(kObjectError, "CCreateGuid component failure",
                      std::string(kProjectName) + ".CCreateGuid");
    }
    hi = (hi & ~uint64_t{0xF000}) | 0x4000;                        // version 4
    lo = (lo & ~(uint64_t{0xC0} << 56)) | (uint64_t{0x80} << 56);  // RFC 4122 variant
    std::string out = PadHex(hi >> 32, 8, true);
    out += PadHex((hi >> 16) & 0xFFFF, 4, true);
    out += PadHex(hi & 0xFFFF, 4, true);
    for (int i = 0; i < 8; ++i) out += PadHex((lo >> (56 - 8 * i)) & 0xFF, 2, i == 1);
    return out;
}

}  // namespace qv
