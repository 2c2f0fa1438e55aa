#pragma once
// A plain grid: columns with a caption, a field name (its key), a width, a
// visible flag, a place among the shown columns and a cell style, and rows
// of text cells that each carry a tag. Views show it through Changed and
// CellChanged; a user's selection, edits and button clicks come back
// through select(), beginEdit()/commitEdit() and clickCellButton().
//
// Edits go through BeforeCellUpdate (which may cancel) and AfterCellUpdate.
// What a view shows of a cell passes the display filter, except the active
// cell while it is being edited: that shows the cell as it is.

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "Export.h"
#include "toolkit/Event.h"

namespace qv {

class QV_EXPORT Grid {
public:
    enum class CellStyle { Edit, CheckBox, Button };

    struct Column {
        std::string caption;
        std::string field;
        int32_t width = 1000;  // twips
        bool visible = true;
        int32_t position = 0;  // among the shown columns; ties keep the order of adding
        CellStyle style = CellStyle::Edit;
        std::string tip;  // what a cell of the column does, for a button column
    };
    struct Row {
        std::vector<std::string> cells;
        std::string tag;
    };
    // (row, column, raw text) -> the text shown.
    using DisplayFilter = std::function<std::string(int32_t, int32_t, const std::string&)>;
    // A row's cells, made when the row is first read.
    using RowMaker = std::function<std::vector<std::string>(int32_t row)>;

    explicit Grid(std::string name = {});
    Grid(const Grid&) = delete;
    Grid& operator=(const Grid&) = delete;

    [[nodiscard]] const std::string& name() const { return name_; }
    [[nodiscard]] const std::string& caption() const { return caption_; }
    void setCaption(const std::string& caption);
    // The grid's width in twips as its view last laid it out; 0 before.
    [[nodiscard]] int32_t extentWidth() const { return extentWidth_; }
    void setExtentWidth(int32_t twips) { extentWidth_ = twips; }
    // The view's width changed, as the user resized: raises Resized.
    void userResized(int32_t twips);

    // Columns, counted from 0. Adding one gives every row an empty cell;
    // it takes the next place among the shown columns.
    int32_t addColumn(const std::string& caption, const std::string& field, int32_t width = 1000);
    [[nodiscard]] int32_t columnCount() const { return static_cast<int32_t>(columns_.size()); }
    [[nodiscard]] const Column& column(int32_t index) const;
    // The index of the column bound to a field, whatever its case, or -1.
    [[nodiscard]] int32_t columnOf(const std::string& field) const;
    void setColumnWidth(int32_t index, int32_t width);
    void setColumnVisible(int32_t index, bool visible);
    void setColumnCaption(int32_t index, const std::string& caption);
    void setColumnPosition(int32_t index, int32_t position);
    void setColumnStyle(int32_t index, CellStyle style);
    void setColumnTip(int32_t index, const std::string& tip);
    // The visible columns in their shown order.
    [[nodiscard]] std::vector<int32_t> shownColumns() const;

    // Rows, counted from 0. Short cell lists are padded, long ones cut.
    int32_t addRow(std::vector<std::string> cells, const std::string& tag = {});
    // All rows at once, one Changed.
    void setRows(std::vector<Row> rows);
    // `count` rows, one Changed, each made by `make` (padded or cut like
    // any row) the first time anything reads it: a long grid pays only for
    // the rows that are shown or asked for.
    void setRows(int32_t count, RowMaker make);
    // Whether a row has its cells yet (false only for a row still to make).
    [[nodiscard]] bool rowMade(int32_t row) const;
    void clearRows();
    [[nodiscard]] int32_t rowCount() const { return static_cast<int32_t>(rows_.size()); }
    [[nodiscard]] const Row& row(int32_t index) const;
    [[nodiscard]] const std::string& cell(int32_t row, int32_t column) const;
    // From the program: no update events, a CellChanged for views.
    void setCell(int32_t row, int32_t column, const std::string& text);

    // What a view shows in a cell (see the display filter above).
    [[nodiscard]] std::string displayText(int32_t row, int32_t column) const;
    void setDisplayFilter(DisplayFilter filter);

    // The selected row (the first of the selection), or -1.
    [[nodiscard]] int32_t selectedRow() const { return selected_; }
    // The selected rows in the order the user picked them.
    [[nodiscard]] const std::vector<int32_t>& selectedRows() const { return selection_; }
    // Selects from the program: no SelectionChanged.
    void setSelectedRow(int32_t row);
    // Selects as the user did: raises SelectionChanged when it moves.
    void select(int32_t row);
    void selectRows(const std::vector<int32_t>& rows);

    // Edit mode on one cell: the active cell shows its own text.
    [[nodiscard]] bool editing() const { return editing_; }
    [[nodiscard]] int32_t activeRow() const { return activeRow_; }
    [[nodiscard]] int32_t activeColumn() const { return activeColumn_; }
    void beginEdit(int32_t row, int32_t column);
    // Ends edit mode with the text typed; false when BeforeCellUpdate refused it.
    bool commitEdit(const std::string& text);
    void cancelEdit();
    // A user's change of a cell, as a commit without edit mode (a check box).
    bool updateCell(int32_t row, int32_t column, const std::string& text);
    void clickCellButton(int32_t row, int32_t column);

    Event<int32_t> SelectionChanged;  // the user selected another row
    Event<> Changed;                  // columns, rows, selection or mode changed
    Event<int32_t, int32_t> CellChanged;
    // row, column, new text, cancel
    Event<int32_t, int32_t, const std::string&, bool&> BeforeCellUpdate;
    Event<int32_t, int32_t> AfterCellUpdate;
    Event<int32_t, int32_t> ClickCellButton;
    Event<> Resized;  // the view was resized; extentWidth() holds its width

private:
    void checkRow(int32_t row) const;
    void checkColumn(int32_t column) const;
    Column& at(int32_t column);
    // The row with its cells, made now if it was still to make.
    Row& made(int32_t row) const;
    // New rows: no selection, no edit, one Changed.
    void rowsReplaced();

    std::string name_;
    std::string caption_;
    int32_t extentWidth_ = 0;
    std::vector<Column> columns_;
    // Rows of setRows(count, make) get their cells on first read, which a
    // const reader may trigger.
    mutable std::vector<Row> rows_;
    mutable std::vector<bool> unmade_;
    RowMaker maker_;
    int32_t selected_ = -1;
    std::vector<int32_t> selection_;
    bool editing_ = false;
    int32_t activeRow_ = -1, activeColumn_ = -1;
    DisplayFilter filter_;
};

}  // namespace qv
