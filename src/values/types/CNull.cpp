#include "values/types/CNull.h"

#include <cmath>

#include "toolkit/Failure.h"
#include "values/types/Convert.h"

namespace qv {

namespace {
[[noreturn]] void overflow() {
    throw Failure(err::Overflow, "Overflow");
}
}  // namespace

Value CNull::NVL(const Value& v, const Value& def) {
    return v.isNull() ? def : v;
}

bool CNull::NVLBool(const Value& v, bool def) {
    return v.isNull() ? def : v.toBool();
}

uint8_t CNull::NVLByte(const Value& v, uint8_t def) {
    if (v.isNull()) return def;
    const int32_t n = v.toInt32();
    if (n < 0 || n > 255) overflow();
    return static_cast<uint8_t>(n);
}

int64_t CNull::NVLCur(const Value& v, int64_t def) {
    if (v.isNull()) return def;
    // Rounded half to even at the fourth decimal, like the platform.
    const double scaled = std::nearbyint(v.toDouble() * kCurrencyScale);
    if (!(std::fabs(scaled) < 9.2233720368547758e18)) overflow();
    return static_cast<int64_t>(scaled);
}

Date CNull::NVLDate(const Value& v, Date def) {
    return v.isNull() ? def : v.toDate();
}

double CNull::NVLDbl(const Value& v, double def) {
    return v.isNull() ? def : v.toDouble();
}

int16_t CNull::NVLInt(const Value& v, int16_t def) {
    return v.isNull() ? def : v.toInt16();
}

int32_t CNull::NVLLng(const Value& v, int32_t def) {
    return v.isNull() ? def : v.toInt32();
}

float CNull::NVLSng(const Value& v, float def) {
    return v.isNull() ? def : toSingleFloat(v.toDouble());
}

std::string CNull::NVLStr(const Value& v, const std::string& def) {
    return v.isNull() ? def : v.toText();
}

}  // namespace qv
