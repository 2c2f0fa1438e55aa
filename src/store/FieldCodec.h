#pragma once
// Between the store's columns and the logic's values: what a column holds
// from its declared type, a value converted for a column, and a value bound
// to a statement parameter.

#include <sqlite3.h>

#include <cstdint>
#include <string_view>

#include "store/RowStore.h"
#include "values/types/Value.h"

namespace qv {

// What a column holds, from its declared type.
enum class FieldType : uint8_t { Expr, Bool, Int16, Int32, Double, Date, Text };

class FieldCodec {
public:
    [[nodiscard]] static FieldType typeFromDecl(const char* decl);
    // A value as the column's declared type wants it; throws (type mismatch,
    // overflow, invalid use of null) before anything changes.
    [[nodiscard]] static Value convertFor(FieldType type, const Value& v);
    static void bindValue(sqlite3_stmt* stmt, int index, const Value& v);
    // Whether two values of a column would be stored alike: nulls are
    // alike, dates to the millisecond, numbers by number, texts byte for byte.
    [[nodiscard]] static bool sameStored(const Value& a, const Value& b);
    // Column names compare without regard to case, as the engine's do.
    [[nodiscard]] static bool equalsNoCase(std::string_view a, std::string_view b);
    [[nodiscard]] static bool fitsInt32(int64_t i);
    [[nodiscard]] static bool fitsInt16(int64_t i);
    // A cell as read, decoded for its column's declared type.
    [[nodiscard]] static Value fromCell(const Cell& cell, FieldType type);
    // A cell as the store holds it, whatever its column's type (for a write's check).
    [[nodiscard]] static Value rawFromCell(const Cell& cell);
};

}  // namespace qv
