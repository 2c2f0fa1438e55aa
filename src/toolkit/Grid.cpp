#include "toolkit/Grid.h"

#include <algorithm>
#include <utility>

#include "toolkit/Failure.h"

namespace qv {

namespace {
bool sameKey(const std::string& a, const std::string& b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](char x, char y) {
        const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; };
        return lower(x) == lower(y);
    });
}
}  // namespace

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

Grid::Column& Grid::at(int32_t column) {
    checkColumn(column);
    return columns_[static_cast<std::size_t>(column)];
}

void Grid::setCaption(const std::string& caption) {
    caption_ = caption;
    Changed();
}

void Grid::userResized(int32_t twips) {
    if (twips == extentWidth_) return;
    extentWidth_ = twips;
    Resized();
}

int32_t Grid::addColumn(const std::string& caption, const std::string& field, int32_t width) {
    columns_.push_back({caption, field, width, true, columnCount(), CellStyle::Edit, {}});
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
        if (sameKey(columns_[i].field, field)) return static_cast<int32_t>(i);
    return -1;
}

void Grid::setColumnWidth(int32_t index, int32_t width) {
    at(index).width = width;
    Changed();
}

void Grid::setColumnVisible(int32_t index, bool visible) {
    at(index).visible = visible;
    Changed();
}

void Grid::setColumnCaption(int32_t index, const std::string& caption) {
    at(index).caption = caption;
    Changed();
}

void Grid::setColumnTip(int32_t index, const std::string& tip) {
    at(index).tip = tip;
    Changed();
}

void Grid::setColumnPosition(int32_t index, int32_t position) {
    at(index).position = position;
    Changed();
}

void Grid::setColumnStyle(int32_t index, CellStyle style) {
    at(index).style = style;
    Changed();
}

std::vector<int32_t> Grid::shownColumns() const {
    std::vector<int32_t> shown;
    for (int32_t i = 0; i < columnCount(); ++i)
        if (columns_[static_cast<std::size_t>(i)].visible) shown.push_back(i);
    std::stable_sort(shown.begin(), shown.end(), [this](int32_t a, int32_t b) {
        return columns_[static_cast<std::size_t>(a)].position < columns_[static_cast<std::size_t>(b)].position;
    });
    return shown;
}

int32_t Grid::addRow(std::vector<std::string> cells, const std::string& tag) {
    cells.resize(columns_.size());
    rows_.push_back({std::move(cells), tag});
    if (!unmade_.empty()) unmade_.push_back(false);
    Changed();
    return rowCount() - 1;
}

void Grid::setRows(std::vector<Row> rows) {
    for (auto& r : rows) r.cells.resize(columns_.size());
    rows_ = std::move(rows);
    unmade_.clear();
    maker_ = nullptr;
    rowsReplaced();
}

void Grid::setRows(int32_t count, RowMaker make) {
    rows_.assign(static_cast<std::size_t>(std::max(count, 0)), Row{});
    unmade_.assign(rows_.size(), true);
    maker_ = std::move(make);
    rowsReplaced();
}

void Grid::rowsReplaced() {
    selected_ = -1;
    selection_.clear();
    editing_ = false;
    activeRow_ = activeColumn_ = -1;
    Changed();
}

void Grid::clearRows() { setRows({}); }

bool Grid::rowMade(int32_t row) const {
    checkRow(row);
    const auto r = static_cast<std::size_t>(row);
    return r >= unmade_.size() || !unmade_[r];
}

Grid::Row& Grid::made(int32_t row) const {
    checkRow(row);
    const auto r = static_cast<std::size_t>(row);
    Row& at = rows_[r];
    if (r < unmade_.size() && unmade_[r]) {
        std::vector<std::string> cells = maker_ ? maker_(row) : std::vector<std::string>{};
        cells.resize(columns_.size());
        at.cells = std::move(cells);
        unmade_[r] = false;
    }
    return at;
}

const Grid::Row& Grid::row(int32_t index) const { return made(index); }

const std::string& Grid::cell(int32_t row, int32_t column) const {
    checkColumn(column);
    return made(row).cells[static_cast<std::size_t>(column)];
}

void Grid::setCell(int32_t row, int32_t column, const std::string& text) {
    checkColumn(column);
    made(row).cells[static_cast<std::size_t>(column)] = text;
    CellChanged(row, column);
}

std::string Grid::displayText(int32_t row, int32_t column) const {
    const std::string& raw = cell(row, column);
    if (!filter_ || (editing_ && row == activeRow_ && column == activeColumn_)) return raw;
    return filter_(row, column, raw);
}

void Grid::setDisplayFilter(DisplayFilter filter) {
    filter_ = std::move(filter);
    Changed();
}

void Grid::setSelectedRow(int32_t row) {
    if (row != -1) checkRow(row);
    if (selected_ == row && selection_.size() == (row == -1 ? 0u : 1u)) return;
    selected_ = row;
    selection_.clear();
    if (row != -1) selection_.push_back(row);
    Changed();
}

void Grid::select(int32_t row) {
    if (selected_ == row) return;
    setSelectedRow(row);
    SelectionChanged(row);
}

void Grid::selectRows(const std::vector<int32_t>& rows) {
    for (int32_t r : rows) checkRow(r);
    if (rows == selection_) return;
    selection_ = rows;
    selected_ = rows.empty() ? -1 : rows.front();
    Changed();
    SelectionChanged(selected_);
}

void Grid::beginEdit(int32_t row, int32_t column) {
    checkRow(row);
    checkColumn(column);
    editing_ = true;
    activeRow_ = row;
    activeColumn_ = column;
    CellChanged(row, column);
}

bool Grid::commitEdit(const std::string& text) {
    if (!editing_) return false;
    editing_ = false;
    const int32_t r = activeRow_, c = activeColumn_;
    CellChanged(r, c);
    return updateCell(r, c, text);
}

void Grid::cancelEdit() {
    if (!editing_) return;
    editing_ = false;
    CellChanged(activeRow_, activeColumn_);
}

bool Grid::updateCell(int32_t row, int32_t column, const std::string& text) {
    checkRow(row);
    checkColumn(column);
    bool cancel = false;
    BeforeCellUpdate(row, column, text, cancel);
    if (cancel) return false;
    setCell(row, column, text);
    AfterCellUpdate(row, column);
    return true;
}

void Grid::clickCellButton(int32_t row, int32_t column) {
    checkRow(row);
    checkColumn(column);
    ClickCellButton(row, column);
}

}  // namespace qv
