#include <gtest/gtest.h>

#include <array>

#include "toolkit/DateBox.h"
#include "toolkit/DaySerial.h"
#include "toolkit/Failure.h"
#include "toolkit/Grid.h"
#include "toolkit/TextEditor.h"

namespace qv {

TEST(DateBox, OnlyTheUserRaisesChange) {
    DateBox box("ctDeadline");
    int changes = 0, viewUpdates = 0;
    box.Change.connect([&] { ++changes; });
    box.Changed.connect([&] { ++viewUpdates; });

    const double jan15 = DaySerial::fromCivil(2024, 1, 15);
    box.setValue(jan15);
    box.clear();
    EXPECT_EQ(changes, 0) << "clearing from the program must not be undone by the handler";
    EXPECT_EQ(viewUpdates, 2);
    EXPECT_FALSE(box.hasDate());
    EXPECT_EQ(box.text(), "");

    box.userSetValue(jan15);
    box.userSetValue(jan15);
    box.userClear();
    EXPECT_EQ(changes, 2);
    EXPECT_DOUBLE_EQ(box.value(), 1.0);
}

TEST(DateBox, TextFollowsTheFormatSettings) {
    DateBox box;
    box.setValue(DaySerial::fromCivil(2024, 3, 5));
    EXPECT_EQ(box.text(), "3/5/2024");
    box.setMonthNames(
        "January,February,March,April,May,June,July,August,September,October,November,December");
    box.setSeparator("-");
    box.setDateStyle(DateBox::DayMonthYear);
    box.setMonthStyle(DateBox::MonthShortName);
    EXPECT_EQ(box.text(), "5-Mar-2024");
    box.setDateStyle(DateBox::YearMonthDay);
    box.setMonthStyle(DateBox::MonthName);
    EXPECT_EQ(box.text(), "2024-March-5");
    EXPECT_EQ(box.monthName(13), "");

    box.setValue(1.9);
    EXPECT_EQ(box.text(), "") << "below 2 is no date";
    box.setValue(1e300);
    EXPECT_EQ(box.text(), "") << "beyond the last day is no date either";
}

TEST(DaySerial, KnownDaysAndWeekdays) {
    EXPECT_EQ(DaySerial::fromCivil(1899, 12, 30), 0);
    EXPECT_EQ(DaySerial::fromCivil(1900, 3, 1), 61);
    EXPECT_EQ(DaySerial::fromCivil(2024, 1, 15), 45306);
    const auto c = DaySerial::toCivil(45306.99);
    EXPECT_EQ((std::array<int32_t, 3>{c.year, c.month, c.day}), (std::array<int32_t, 3>{2024, 1, 15}));
    EXPECT_EQ(DaySerial::toCivil(-1.5).day, 28);  // before the epoch
    EXPECT_EQ(DaySerial::weekday(45306), 1);      // a Monday
}

TEST(TextEditor, TextAndRichTextStayInStep) {
    TextEditor ed("spellTask");
    int changes = 0;
    ed.Change.connect([&] { ++changes; });

    ed.setText("R&D <now>\nsecond");
    EXPECT_EQ(ed.richText(), "R&amp;D &lt;now&gt;<br>second");
    ed.setRichText("<p>Call <b>Ann</b> &amp; Bob</p><p>today</p>");
    EXPECT_EQ(ed.text(), "Call Ann & Bob\ntoday");
    ed.setRichText("<p>Call <i>Ann</i> &amp; Bob</p><p>today</p>");
    EXPECT_EQ(changes, 2) << "a new look with the same words is no text change";
    EXPECT_EQ(TextEditor::plainOf("a &unknown; <broken"), "a &unknown; ");

    ed.userEdit("typed");
    EXPECT_EQ(changes, 3);
    ed.setReadOnly(true);
    ed.userEdit("ignored");
    ed.setReadOnly(false);
    ed.setLocked(true);
    ed.userEdit("ignored");
    EXPECT_EQ(ed.text(), "typed");
    ed.setText("the program may");
    EXPECT_EQ(changes, 4);
}

TEST(Grid, RowsColumnsAndSelection) {
    Grid g("gridSked");
    g.addColumn("Start", "taStartTime");
    g.addRow({"9:00", "ignored extra"}, "KEY-1");
    const int32_t end = g.addColumn("End", "taEndTime", 1500);
    EXPECT_EQ(g.columnOf("taEndTime"), end);
    EXPECT_EQ(g.columnOf("nope"), -1);
    EXPECT_EQ(g.row(0).cells.size(), 2u);
    EXPECT_EQ(g.cell(0, 1), "") << "a new column pads the rows";
    g.setCell(0, 1, "10:00");
    EXPECT_EQ(g.cell(0, 1), "10:00");
    EXPECT_EQ(g.row(0).tag, "KEY-1");

    std::vector<int32_t> picked;
    g.SelectionChanged.connect([&](int32_t r) { picked.push_back(r); });
    g.setSelectedRow(0);
    g.select(0);
    g.select(-1);
    EXPECT_EQ(picked, (std::vector<int32_t>{-1}));

    EXPECT_THROW((void)g.cell(1, 0), Failure);
    EXPECT_THROW((void)g.cell(0, 2), Failure);
    EXPECT_THROW(g.setSelectedRow(5), Failure);
    g.clearRows();
    EXPECT_EQ(g.rowCount(), 0);
    EXPECT_EQ(g.selectedRow(), -1);
}

TEST(Grid, EditModeFilterAndButtons) {
    Grid g("gridSked");
    const int32_t a = g.addColumn("A", "Alpha");
    const int32_t b = g.addColumn("B", "Beta");
    g.addRow({"1", "x"});
    g.addRow({"2", "y"});
    EXPECT_EQ(g.columnOf("ALPHA"), a) << "keys are found whatever their case";
    g.setColumnPosition(a, 5);
    EXPECT_EQ(g.shownColumns(), (std::vector<int32_t>{b, a}));
    g.setColumnVisible(b, false);
    EXPECT_EQ(g.shownColumns(), (std::vector<int32_t>{a}));

    // Shown text passes the filter, except the cell being edited.
    g.setDisplayFilter([](int32_t, int32_t, const std::string& v) { return "<" + v + ">"; });
    EXPECT_EQ(g.displayText(0, a), "<1>");
    g.beginEdit(0, a);
    EXPECT_EQ(g.displayText(0, a), "1");
    EXPECT_EQ(g.displayText(1, a), "<2>");

    // A refused edit keeps the cell; an accepted one tells after the change.
    std::vector<std::string> seen;
    g.BeforeCellUpdate.connect([&](int32_t, int32_t, const std::string& text, bool& cancel) { cancel = text == "no"; });
    g.AfterCellUpdate.connect([&](int32_t r, int32_t c) { seen.push_back(g.cell(r, c)); });
    EXPECT_FALSE(g.commitEdit("no"));
    EXPECT_FALSE(g.editing());
    EXPECT_EQ(g.cell(0, a), "1");
    EXPECT_FALSE(g.commitEdit("3")) << "nothing to commit outside edit mode";
    g.beginEdit(0, a);
    EXPECT_TRUE(g.commitEdit("3"));
    EXPECT_EQ(seen, (std::vector<std::string>{"3"}));

    int clicks = 0;
    g.ClickCellButton.connect([&](int32_t r, int32_t c) { clicks += r * 10 + c + 1; });
    g.clickCellButton(1, b);
    EXPECT_EQ(clicks, 12);

    // Several rows selected: the first picked is the selected row.
    g.selectRows({1, 0});
    EXPECT_EQ(g.selectedRow(), 1);
    EXPECT_EQ(g.selectedRows().size(), 2u);
    g.setRows({});
    EXPECT_TRUE(g.selectedRows().empty());
    EXPECT_THROW(g.selectRows({0}), Failure);
}

// Rows made on first read: each once, by whichever reader comes first,
// padded or cut to the columns; a set cell survives; new rows replace them.
TEST(Grid, RowsMadeWhenFirstRead) {
    Grid g("gridSked");
    g.addColumn("A", "Alpha");
    g.addColumn("B", "Beta");
    std::vector<int32_t> made;
    g.setRows(4, [&](int32_t r) {
        made.push_back(r);
        return r == 3 ? std::vector<std::string>{"3", "x", "cut"} : std::vector<std::string>{std::to_string(r)};
    });
    EXPECT_EQ(g.rowCount(), 4);
    EXPECT_TRUE(made.empty());
    EXPECT_FALSE(g.rowMade(2));
    EXPECT_EQ(g.cell(2, 0), "2");
    EXPECT_EQ(g.cell(2, 1), "") << "a short row is padded";
    EXPECT_EQ(g.row(3).cells, (std::vector<std::string>{"3", "x"})) << "a long row is cut";
    g.setCell(1, 1, "set");
    EXPECT_EQ(g.displayText(1, 0), "1");
    EXPECT_EQ(g.cell(1, 1), "set");
    EXPECT_EQ(made, (std::vector<int32_t>{2, 3, 1}));
    EXPECT_TRUE(g.rowMade(2));
    EXPECT_FALSE(g.rowMade(0));
    EXPECT_THROW((void)g.rowMade(4), Failure);
    g.addRow({"new"});
    EXPECT_TRUE(g.rowMade(4));
    EXPECT_EQ(g.cell(0, 0), "0");
    g.setRows({{{"plain"}, {}}});
    EXPECT_TRUE(g.rowMade(0));
    EXPECT_EQ(g.cell(0, 0), "plain");
    EXPECT_EQ(made.size(), 4u);
}

}  // namespace qv
