#pragma once
// The columns that travel in a calendar file, table by table: each with the
// type the store gives it and the X-QUORVEL property that carries its exact
// value. A row is held as column -> value, only for the columns it has.

#include <map>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "values/types/Value.h"

namespace qv {

enum class ColumnKind { Text, Int16, Int32, Bool, Date };

struct ColumnSpec {
    const char* column;
    const char* property;  // X-QUORVEL-... ; nullptr: a standard property carries it
    ColumnKind kind;
};

using Row = std::map<std::string, Value>;

// A text column of a row; "" when null.
std::string textOf(const Row& row, const char* column);

namespace columns {

std::span<const ColumnSpec> tasks();
std::span<const ColumnSpec> appointments();
std::span<const ColumnSpec> projects();
std::span<const ColumnSpec> keywords();

// The exact text of a value in a property ("" never stands for null: null
// is a missing property). Dates are ISO local time with milliseconds,
// booleans 0/1.
std::string toText(ColumnKind kind, const Value& v);
// The typed value of such a text; nothing when it doesn't read.
std::optional<Value> fromText(ColumnKind kind, const std::string& text);
// Whether the stored value already equals the one to write (a date to the
// millisecond, a boolean by truth, numbers by value).
bool same(ColumnKind kind, const Value& stored, const Value& wanted);

}  // namespace columns

}  // namespace qv
