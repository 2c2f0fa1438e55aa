// A long sheet as painted rows: what is built, and the user's roads
// (mouse, Space, editing, the driver's activate) reaching the model.
#include <gtest/gtest.h>

#include <QComboBox>
#include <QLineEdit>
#include <QListView>
#include <QTest>

#include "kit/SheetModel.h"
#include "kit/SheetWidget.h"
#include "toolkit/Sheet.h"
#include "toolkit/Tool.h"

namespace qv {
namespace {

struct LongSheet : ::testing::Test {
    Sheet sheet{"smtKeywords", "Keywords"};
    std::vector<std::string> clicks, edits;
    SheetWidget* w = nullptr;

    LongSheet() {
        sheet.Click.connect([this](Tool& t) { clicks.push_back(t.key()); });
        sheet.AfterEdit.connect([this](Tool& t) { edits.push_back(t.key() + "=" + t.text()); });
        sheet.add(ttButton, "kNEWKEYWORD", "New Keyword...");
        sheet.add(ttTextBox, "OTHER", "Other:");
        Tool& status = sheet.add(ttButton, "STATUS", "Status");
        for (const char* s : {"Active", "Done"}) status.addItem(ttOption, std::string("S-") + s, s);
        for (int c = 0; c < 20; ++c) {
            sheet.add(ttHeading, "C" + std::to_string(c), "Subject " + std::to_string(c));
            for (int k = 0; k < 100; ++k) sheet.add(ttCheck, key(c, k), "Keyword " + std::to_string(k));
        }
    }
    ~LongSheet() override { delete w; }

    static std::string key(int c, int k) { return "K" + std::to_string(c) + "-" + std::to_string(k); }
    void open() {
        w = new SheetWidget(sheet);
        w->resize(300, 400);
        w->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(w));
    }
    QListView* list() const { return w->listView(); }
    QModelIndex row(const std::string& k) const {
        return static_cast<SheetModel*>(list()->model())->indexOf(k);
    }
    void clickRow(const std::string& k) {
        list()->scrollTo(row(k));
        QTest::mouseClick(list()->viewport(), Qt::LeftButton, {}, list()->visualRect(row(k)).center());
    }
};

TEST_F(LongSheet, CostsWhatIsShownAndFollowsTheModel) {
    open();
    ASSERT_NE(list(), nullptr);
    EXPECT_TRUE(w->complete());
    // Two thousand tools, a handful of widgets.
    EXPECT_LT(w->findChildren<QWidget*>().size(), 40);
    EXPECT_EQ(list()->model()->rowCount(), 2023);

    sheet.tool(key(19, 99)).setChecked(true);
    sheet.tool(key(0, 1)).setVisible(false);
    QTRY_COMPARE(list()->model()->rowCount(), 2022);
    EXPECT_EQ(row(key(19, 99)).data(Qt::CheckStateRole).toInt(), Qt::Checked);
    EXPECT_FALSE(row(key(0, 1)).isValid());

    // A refill down to a few tools goes back to cells; up again, back to rows.
    sheet.removeAll();
    sheet.add(ttCheck, "ONLY", "Only");
    QTRY_VERIFY(w->listView() == nullptr);
    EXPECT_NE(w->cellOf("ONLY"), nullptr);
    for (int k = 0; k < 60; ++k) sheet.add(ttCheck, key(0, k), "Again");
    QTRY_VERIFY(w->listView() != nullptr);
    EXPECT_EQ(list()->model()->rowCount(), 61);
}

TEST_F(LongSheet, MouseAndSpaceWorkRowsAsTheirCellsWould) {
    open();
    clickRow(key(0, 3));
    EXPECT_EQ(clicks, std::vector<std::string>{key(0, 3)});
    EXPECT_TRUE(sheet.tool(key(0, 3)).checked());

    // A heading is not a tool the user works; a disabled tool ignores him.
    clickRow("C0");
    sheet.tool(key(0, 4)).setEnabled(false);
    w->syncNow();
    clickRow(key(0, 4));
    EXPECT_EQ(clicks.size(), 1u);
    EXPECT_FALSE(w->activate(key(0, 4)));

    list()->setFocus();
    list()->setCurrentIndex(row(key(0, 5)));
    QTest::keyClick(list(), Qt::Key_Space);
    EXPECT_TRUE(sheet.tool(key(0, 5)).checked());

    // Far down the list, reached the way the driver does.
    EXPECT_TRUE(w->activate(key(19, 98)));
    EXPECT_TRUE(sheet.tool(key(19, 98)).checked());
    EXPECT_TRUE(list()->viewport()->rect().intersects(list()->visualRect(row(key(19, 98)))));
    EXPECT_EQ(clicks.back(), key(19, 98));
}

TEST_F(LongSheet, TextAndListToolsGetAnEditorOnlyWhileEdited) {
    open();
    EXPECT_EQ(w->findChild<QLineEdit*>(), nullptr);
    clickRow("OTHER");
    QTRY_VERIFY(w->findChild<QLineEdit*>("smtKeywords.OTHER.edit") != nullptr);
    auto* edit = w->findChild<QLineEdit*>("smtKeywords.OTHER.edit");
    QTest::keyClicks(edit, "Garden");
    EXPECT_EQ(sheet.tool("OTHER").text(), "Garden");
    EXPECT_TRUE(edits.empty());
    QTest::keyClick(edit, Qt::Key_Return);
    QTRY_COMPARE(edits, std::vector<std::string>{"OTHER=Garden"});
    QTRY_VERIFY(w->findChild<QLineEdit*>("smtKeywords.OTHER.edit") == nullptr);
    EXPECT_EQ(row("OTHER").data(SheetModel::TextRole).toString(), "Garden");

    // A refused edit leaves the text as it was.
    sheet.BeforeEdit.connect([](Tool& t, bool& cancel) { cancel = t.key() == "OTHER"; });
    ASSERT_TRUE(w->activate("OTHER"));
    auto* refused = w->findChild<QLineEdit*>("smtKeywords.OTHER.edit");
    ASSERT_NE(refused, nullptr);
    EXPECT_TRUE(refused->isReadOnly());

    // A drop-down list: picking an entry is a whole edit of the list.
    ASSERT_TRUE(w->activate("STATUS"));
    auto* box = w->findChild<QComboBox*>("smtKeywords.STATUS.list");
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(box->count(), 2);
    box->activated(1);
    EXPECT_EQ(sheet.tool("STATUS").text(), "Done");
    EXPECT_EQ(edits.back(), "STATUS=Done");
}

}  // namespace
}  // namespace qv
