#pragma once
// The two-dimensional text value a report table is filled from, indexed
// (column, row) from 0. A default one is null: a table that was never
// given rows. Rows can be added at the end keeping what they hold.

#include <cstdint>
#include <string>
#include <vector>

#include "Export.h"

namespace qv {

class QV_EXPORT ReportRows {
public:
    ReportRows() = default;
    ReportRows(int32_t columns, int32_t rows);

    [[nodiscard]] bool isNull() const { return null_; }
    [[nodiscard]] int32_t columns() const { return columns_; }
    [[nodiscard]] int32_t rows() const { return rows_; }
    // The last row's index. Throws TypeMismatch when null and
    // SubscriptOutOfRange when there are no rows.
    [[nodiscard]] int32_t upperRow() const;
    // Throws SubscriptOutOfRange outside the bounds.
    [[nodiscard]] const std::string& at(int32_t column, int32_t row) const;
    [[nodiscard]] std::string& at(int32_t column, int32_t row);
    // One more row at the end, empty; the others keep their texts.
    void addRow();

private:
    [[nodiscard]] std::size_t index(int32_t column, int32_t row) const;

    bool null_ = true;
    int32_t columns_ = 0;
    int32_t rows_ = 0;
    std::vector<std::string> cells_;  // row after row
};

}  // namespace qv
