#pragma once
// A plain grid: columns with a caption, a field name, a width and a
// visible flag, and rows of text cells that each carry a tag. Views show
// it through Changed; a user's selection comes back through select().

#include <cstdint>
#include <string>
#include <vector>

#include "Export.h"
#include "toolkit/Event.h"

namespace qv {

class QV_EXPORT Grid {
public:
    struct Column {
        std::string caption;
        std::string field;
        int32_t width = 1000;  // twips
        bool visible = true;
    };
    struct Row {
        std::vector<std::string> cells;
        std::string tag;
    };

    explicit Grid(std::string name = {});
    Grid(const Grid&) = delete;
    Grid& operator=(const Grid&) = delete;

    [[nodiscard]] const std::string& name() const { return name_; }

    // Columns, counted from 0. Adding one gives every row an empty cell.
    int32_t addColumn(const std::string& caption, const std::string& field, int32_t width = 1000);
    [[nodiscard]] int32_t columnCount() const { return static_cast<int32_t>(columns_.size()); }
    [[nodiscard]] const Column& column(int32_t index) const;
    // The index of the column bound to a field, or -1.
    [[nodiscard]] int32_t columnOf(const std::string& field) const;
    void setColumnWidth(int32_t index, int32_t width);
    void setColumnVisible(int32_t index, bool visible);

    // Rows, counted from 0. Short cell lists are padded, long ones cut.
    int32_t addRow(std::vector<std::string> cells, const std::string& tag = {});
    void clearRows();
    [[nodiscard]] int32_t rowCount() const { return static_cast<int32_t>(rows_.size()); }
    [[nodiscard]] const Row& row(int32_t index) const;
    [[nodiscard]] const std::string& cell(int32_t row, int32_t column) const;
    void setCell(int32_t row, int32_t column, const std::string& text);

    // The selected row, or -1.
    [[nodiscard]] int32_t selectedRow() const { return selected_; }
    // Selects from the program: no SelectionChanged.
    void setSelectedRow(int32_t row);
    // Selects as the user did: raises SelectionChanged when it moves.
    void select(int32_t row);

    Event<int32_t> SelectionChanged;  // the user selected another row
    Event<> Changed;                  // anything a view shows changed

private:
    void checkRow(int32_t row) const;
    void checkColumn(int32_t column) const;

    std::string name_;
    std::vector<Column> columns_;
    std::vector<Row> rows_;
    int32_t selected_ = -1;
};

}  // namespace qv
