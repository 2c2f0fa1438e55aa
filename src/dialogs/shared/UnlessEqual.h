#pragma once
// Writes a column of the current row only when its value differs from the
// new one, so that an unchanged row is not rewritten. Values compare as
// values: numbers, dates and booleans by number (dates to the millisecond),
// a text against a number by the number it reads as, texts as texts; a null
// differs from everything.

#include "values/types/Value.h"

namespace qv {

class Recordset;

class UnlessEqual {
public:
    [[nodiscard]] static bool same(const Value& stored, const Value& wanted);
    // True when the column was written.
    static bool write(Recordset& rs, const char* column, const Value& wanted);
};

}  // namespace qv
