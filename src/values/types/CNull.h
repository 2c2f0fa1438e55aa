#pragma once
// Null-safe reads of field values: each member returns the default when the
// value is null, else the value converted to its type. A value that doesn't
// convert throws Failure (type mismatch or overflow), as the trap expects.

#include <cstdint>
#include <string>

#include "values/types/Value.h"

namespace qv {

class CNull {
public:
    // Currency: a 64-bit count of ten-thousandths.
    static constexpr int64_t kCurrencyScale = 10000;

    [[nodiscard]] static Value NVL(const Value& v, const Value& def = {});
    [[nodiscard]] static bool NVLBool(const Value& v, bool def = false);
    [[nodiscard]] static uint8_t NVLByte(const Value& v, uint8_t def = 0);
    [[nodiscard]] static int64_t NVLCur(const Value& v, int64_t def = 0);
    [[nodiscard]] static Date NVLDate(const Value& v, Date def = {});
    [[nodiscard]] static double NVLDbl(const Value& v, double def = 0.0);
    [[nodiscard]] static int16_t NVLInt(const Value& v, int16_t def = 0);
    [[nodiscard]] static int32_t NVLLng(const Value& v, int32_t def = 0);
    [[nodiscard]] static float NVLSng(const Value& v, float def = 0.0f);
    [[nodiscard]] static std::string NVLStr(const Value& v, const std::string& def = {});
};

}  // namespace qv
