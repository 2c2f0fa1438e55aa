#include "toolkit/Grid.h"

#include <utility>

#include "toolkit/Failure.h"

namespace qv {

Grid::Grid(std::string name) : name_(std::move(name)) {}

void Grid::checkRow(int32_t row) const {
    if (row < 0 || row >= rowCount())
        throw Failure(err::SubscriptOutOfRange, "Row " + std::to_string(row) + " is not in grid " + name_);
}

void Grid::checkColumn(int32_t column) const {
    if (column < 0 || column >= columnCount())
        throw Failure(err::SubscriptOutOfRange,
                      "Column " + std::to_string(column) + " is not in grid " + name_);
}

int32_t Grid::addColumn(const std::string& caption, const std::string& field, int32_t width) {
    columns_.push_back({caption, field, width, true});
    for (auto& r : rows_) r.cells.emplace_back();
    Changed();
    return columnCount() - 1;
}

const Grid::Column& Grid::column(int32_t index) const {
    checkColumn(index);
    return columns_[static_cast<std::size_t>(index)];
}

int32_t Grid::columnOf(const std::string& field) const {
    for (std::size_t i = 0; i < columns_.size(); ++i)
        if (columns_[i].field == field) return static_cast<int32_t>(i);
    return -1;
}

void Grid::setColumnWidth(int32_t index, int32_t width) {
    checkColumn(index);
    columns_[static_cast<std::size_t>(index)].width = width;
    Changed();
}

void Grid::setColumnVisible(int32_t index, bool visible) {
    checkColumn(index);
    columns_[static_cast<std::size_t>(index)].visible = visible;
    Changed();
}

int32_t Grid::addRow(std::vector<std::string> cells, const std::string& tag) {
    cells.resize(columns_.size());
    rows_.push_back({std::move(cells), tag});
    Changed();
    return rowCount() - 1;
}

void Grid::clearRows() {
    rows_.clear();
    selected_ = -1;
    Changed();
}

const Grid::Row& Grid::row(int32_t index) const {
    checkRow(index);
    return rows_[static_cast<std::size_t>(index)];
}

const std::string& Grid::cell(int32_t row, int32_t column) const {
    checkColumn(column);
    return this->row(row).cells[static_cast<std::size_t>(column)];
}

void Grid::setCell(int32_t row, int32_t column, const std::string& text) {
    checkRow(row);
    checkColumn(column);
    rows_[static_cast<std::size_t>(row)].cells[static_cast<std::size_t>(column)] = text;
    Changed();
}

void Grid::setSelectedRow(int32_t row) {
    if (row != -1) checkRow(row);
    if (selected_ == row) return;
    selected_ = row;
    Changed();
}

void Grid::select(int32_t row) {
    if (selected_ == row) return;
    setSelectedRow(row);
    SelectionChanged(row);
}

}  // namespace qv
