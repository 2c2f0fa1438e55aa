// The grid's table: edits in place through the grid's rules, buttons and
// check boxes in cells, the selection and the width going back, and a long
// grid that paints only what shows.
#include <gtest/gtest.h>

#include <QApplication>
#include <QHeaderView>
#include <QLineEdit>
#include <QTableView>
#include <QTabBar>
#include <QTest>
#include <QVBoxLayout>

#include "kit/GridDelegate.h"
#include "kit/GridModel.h"
#include "kit/GridView.h"
#include "kit/TabStripView.h"
#include "toolkit/Grid.h"
#include "toolkit/TabStrip.h"

namespace qv {
namespace {

class GridViewTest : public ::testing::Test {
protected:
    void SetUp() override {
        done = grid.addColumn("Done?", "Done");
        start = grid.addColumn("Start", "Start", 1440);
        button = grid.addColumn(">>", "Btn", 720);
        hidden = grid.addColumn("Key", "Key");
        grid.setColumnStyle(done, Grid::CellStyle::CheckBox);
        grid.setColumnStyle(button, Grid::CellStyle::Button);
        grid.setColumnVisible(hidden, false);
        grid.setColumnPosition(done, 9);  // shown last
        grid.setCaption("Task Appointments: 2");
    }
    void fill(int rows) {
        std::vector<Grid::Row> all;
        for (int r = 0; r < rows; ++r) all.push_back({{"False", "9:0" + std::to_string(r % 10), ">>>", "K" + std::to_string(r)}, {}});
        grid.setRows(std::move(all));
    }
    QRect cellRect(GridView& v, int row, int gridColumn) {
        return v.table()->visualRect(v.model()->index(row, v.model()->viewColumn(gridColumn)));
    }

    Grid grid{"gridSked"};
    int done = 0, start = 0, button = 0, hidden = 0;
};

TEST_F(GridViewTest, EditsButtonsChecksAndSelectionGoThroughTheGrid) {
    fill(2);
    std::vector<std::string> refusedTexts;
    grid.BeforeCellUpdate.connect([&](int32_t, int32_t, const std::string& text, bool& cancel) {
        if (text == "no") {
            cancel = true;
            refusedTexts.push_back(text);
        }
    });
    std::vector<int> clicked;
    grid.ClickCellButton.connect([&](int32_t r, int32_t) { clicked.push_back(r); });
    grid.setDisplayFilter([](int32_t, int32_t, const std::string& v) { return "at " + v; });

    GridView view(grid);
    view.resize(600, 300);
    view.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&view));
    QTableView* t = view.table();
    EXPECT_EQ(view.model()->columnCount(), 3);
    EXPECT_EQ(view.model()->headerData(2, Qt::Horizontal, Qt::DisplayRole).toString(), "Done?");
    EXPECT_EQ(t->horizontalHeader()->sectionSize(view.model()->viewColumn(start)), 96) << "1440 twips at 96 dpi";
    EXPECT_EQ(view.model()->index(0, view.model()->viewColumn(start)).data().toString(), "at 9:00");

    // Editing shows the cell as it is; a refused text keeps the old one; Escape changes nothing.
    const QModelIndex s0 = view.model()->index(0, view.model()->viewColumn(start));
    t->setCurrentIndex(s0);
    const auto edit = [&](const char* typed, Qt::Key key, const char* shown) {
        SCOPED_TRACE(typed);
        t->edit(s0);
        auto* editor = qobject_cast<QLineEdit*>(t->indexWidget(s0));
        ASSERT_NE(editor, nullptr);
        EXPECT_TRUE(grid.editing());
        EXPECT_EQ(editor->text(), shown);
        editor->setText(typed);
        QTest::keyClick(editor, key);
        QApplication::processEvents();  // the commit is queued
        EXPECT_FALSE(grid.editing());
    };
    edit("no", Qt::Key_Return, "9:00");
    EXPECT_EQ(refusedTexts.size(), 1u);
    EXPECT_EQ(grid.cell(0, start), "9:00");
    edit("10:15", Qt::Key_Return, "9:00");
    EXPECT_EQ(grid.cell(0, start), "10:15");
    edit("11:00", Qt::Key_Escape, "10:15");
    EXPECT_EQ(grid.cell(0, start), "10:15");

    // The button cell, by mouse and by Space.
    QTest::mouseClick(t->viewport(), Qt::LeftButton, {}, cellRect(view, 1, button).center());
    t->setCurrentIndex(view.model()->index(0, view.model()->viewColumn(button)));
    QTest::keyClick(t, Qt::Key_Space);
    EXPECT_EQ(clicked, (std::vector<int>{1, 0}));

    EXPECT_TRUE(view.model()->setData(view.model()->index(1, view.model()->viewColumn(done)), Qt::Checked,
                                      Qt::CheckStateRole));
    EXPECT_EQ(grid.cell(1, done), "True");

    t->clearSelection();
    t->selectionModel()->select(view.model()->index(1, 0), QItemSelectionModel::Select | QItemSelectionModel::Rows);
    t->selectionModel()->select(view.model()->index(0, 0), QItemSelectionModel::Select | QItemSelectionModel::Rows);
    EXPECT_EQ(grid.selectedRows(), (std::vector<int32_t>{1, 0}));

    // The width goes back once the resize is complete.
    view.resize(700, 300);
    QApplication::processEvents();
    EXPECT_GT(grid.extentWidth(), 0);
}

TEST_F(GridViewTest, ALongGridPaintsWhatShows) {
    fill(5000);
    int asked = 0;
    grid.setDisplayFilter([&](int32_t, int32_t, const std::string& v) {
        ++asked;
        return v;
    });
    GridView view(grid);
    view.resize(600, 300);
    view.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&view));
    (void)view.grab();
    EXPECT_GT(asked, 0);
    EXPECT_LT(asked, 400) << "cells of 5000 rows asked for: " << asked;
    EXPECT_EQ(view.model()->rowCount(), 5000);
    view.table()->scrollToBottom();
    EXPECT_EQ(view.model()->index(4999, view.model()->viewColumn(start)).data().toString(), "9:09");
}

TEST(TabStripViewTest, ThePanelFollowsTheModel) {
    TabStrip strip("Tabs1", {"&Checklist", "&Task Schedule"});
    TabStripView view(strip);
    auto* one = new QWidget;
    auto* two = new QWidget;
    view.addPanel(one);
    view.addPanel(two);
    EXPECT_EQ(view.currentPanel(), one);
    // Nobody switches: the first tab stays.
    view.bar()->setCurrentIndex(1);
    EXPECT_EQ(view.bar()->currentIndex(), 0);
    strip.Switching.connect([&](int32_t t) { strip.setCurrent(t); });
    view.bar()->setCurrentIndex(1);
    EXPECT_EQ(strip.current(), 1);
    EXPECT_EQ(view.currentPanel(), two);
}

// A page out of view is made once its window has painted, or at once when
// its tab comes forward first; its Tab stops stand where it stands.
TEST(TabStripViewTest, PagesOutOfViewAreMadeAfterThePaintInTheirPlace) {
    TabStrip strip("Tabs1", {"&Checklist", "&Task Schedule", "&Notes"});
    strip.Switching.connect([&](int32_t t) { strip.setCurrent(t); });
    QWidget window;
    auto* column = new QVBoxLayout(&window);
    column->addWidget(new QLineEdit(&window));
    auto* view = new TabStripView(strip, &window);
    column->addWidget(view);
    const auto page = [](const char* name) {
        return [name](QWidget* holder) {
            auto* edit = new QLineEdit(holder);
            edit->setObjectName(name);
            return edit;
        };
    };
    view->addPanel(page("one"));
    view->addPanel(page("two"));
    view->addPanel(page("three"));
    auto* after = new QLineEdit(&window);
    after->setObjectName("after");
    column->addWidget(after);
    EXPECT_NE(window.findChild<QLineEdit*>("one"), nullptr) << "the shown tab's page at once";
    EXPECT_EQ(window.findChild<QLineEdit*>("two"), nullptr);
    EXPECT_FALSE(view->complete());
    strip.setCurrent(2);
    EXPECT_NE(window.findChild<QLineEdit*>("three"), nullptr) << "a tab brought forward has its page";
    strip.setCurrent(0);

    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    QTRY_VERIFY(view->complete());
    std::vector<QString> order;
    for (QWidget* w = window.nextInFocusChain(); w != &window; w = w->nextInFocusChain())
        if (qobject_cast<QLineEdit*>(w) && !w->objectName().isEmpty()) order.push_back(w->objectName());
    EXPECT_EQ(order, (std::vector<QString>{"one", "two", "three", "after"}));
}

}  // namespace
}  // namespace qv
