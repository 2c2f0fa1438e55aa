#include "reports/ReportRows.h"

#include "toolkit/Failure.h"

namespace qv {

namespace {
const char* const kOutOfRange = "Subscript out of range";
}  // namespace

ReportRows::ReportRows(int32_t columns, int32_t rows)
    : null_(false), columns_(columns < 0 ? 0 : columns), rows_(rows < 0 ? 0 : rows) {
    cells_.resize(static_cast<std::size_t>(columns_) * static_cast<std::size_t>(rows_));
}

int32_t ReportRows::upperRow() const {
    if (null_) throw Failure(err::TypeMismatch, "Type mismatch");
    if (rows_ == 0) throw Failure(err::SubscriptOutOfRange, kOutOfRange);
    return rows_ - 1;
}

std::size_t ReportRows::index(int32_t column, int32_t row) const {
    if (column < 0 || column >= columns_ || row < 0 || row >= rows_)
        throw Failure(err::SubscriptOutOfRange, kOutOfRange);
    return static_cast<std::size_t>(row) * static_cast<std::size_t>(columns_) +
           static_cast<std::size_t>(column);
}

const std::string& ReportRows::at(int32_t column, int32_t row) const {
    return cells_[index(column, row)];
}

std::string& ReportRows::at(int32_t column, int32_t row) {
    return cells_[index(column, row)];
}

void ReportRows::addRow() {
    null_ = false;
    ++rows_;
    cells_.resize(static_cast<std::size_t>(columns_) * static_cast<std::size_t>(rows_));
}

}  // namespace qv
