#include "dialogs/shared/UnlessEqual.h"

#include <optional>

#include "store/Recordset.h"
#include "values/types/Convert.h"
#include "values/types/DateSerial.h"

namespace qv {

namespace {

std::optional<double> number(const Value& v) {
    switch (v.kind()) {
        case Value::Kind::Bool:
        case Value::Kind::Int16:
        case Value::Kind::Int32:
        case Value::Kind::Double: return v.toDouble();
        case Value::Kind::Date: return dateserial::roundToMillisecond(v.toDate().serial);
        default: return std::nullopt;
    }
}

}  // namespace

bool UnlessEqual::same(const Value& stored, const Value& wanted) {
    if (stored.isNull() || wanted.isNull()) return false;
    const auto a = number(stored);
    const auto b = number(wanted);
    if (a && b) return *a == *b;
    if (a) return tryToDouble(wanted.toText()) == a;
    if (b) return tryToDouble(stored.toText()) == b;
    return stored.toText() == wanted.toText();
}

bool UnlessEqual::write(Recordset& rs, const char* column, const Value& wanted) {
    if (same(rs.Fields(column).value(), wanted)) return false;
    rs.Fields(column) = wanted;
    return true;
}

}  // namespace qv
