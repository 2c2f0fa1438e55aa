// The generic sheet widget against a live Sheet model.
#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QRadioButton>
#include <QTest>
#include <QToolButton>

#include "kit/SheetWidget.h"
#include "kit/ToolCell.h"
#include "toolkit/Sheet.h"
#include "toolkit/Tool.h"

namespace qv {
namespace {

template <typename W>
W* control(SheetWidget& w, const char* name) {
    auto* found = w.findChild<W*>(name);
    if (found) return found;
    auto* cell = w.findChild<ToolCell*>(name);
    return cell ? cell->findChild<W*>() : nullptr;
}

struct SheetFixture : ::testing::Test {
    Sheet sheet{"smtTest", "Test"};
    std::vector<std::string> clicks;
    SheetFixture() {
        sheet.Click.connect([this](Tool& t) { clicks.push_back(t.key()); });
    }
};

TEST_F(SheetFixture, ToolsOfEveryKindFollowTheModel) {
    sheet.add(ttHeading, "HEAD", "Subjects");
    sheet.add(ttCheck, "K1", "Alpha");
    sheet.add(ttOption, "O1", "One");
    sheet.add(ttOption, "O2", "Two");
    sheet.add(ttSeparator);
    sheet.add(ttTextBox, "TXT", "Other:");
    Tool& flag = sheet.add(ttButton, "FLAG");
    flag.setImage("BAD");
    SheetWidget w(sheet);
    w.show();

    EXPECT_EQ(w.findChild<QLabel*>("smtTest.title")->text(), "Test");
    auto* k1 = control<QCheckBox>(w, "smtTest.K1");
    ASSERT_NE(k1, nullptr);
    EXPECT_EQ(k1->text(), "Alpha");
    EXPECT_FALSE(k1->isChecked());

    sheet.tool("K1").setChecked(true);
    sheet.tool("O2").setBold(true);
    sheet.tool("O2").setForeColor(255);
    sheet.tool("O1").setEnabled(false);
    flag.setTip("Describe the task");
    QTRY_VERIFY(k1->isChecked());
    auto* o2 = control<QRadioButton>(w, "smtTest.O2");
    EXPECT_TRUE(o2->font().bold());
    EXPECT_EQ(o2->palette().color(QPalette::ButtonText), QColor(255, 0, 0));
    EXPECT_FALSE(w.findChild<ToolCell*>("smtTest.O1")->isEnabled());
    EXPECT_EQ(w.findChild<ToolCell*>("smtTest.FLAG")->toolTip(), "Describe the task");

    sheet.tool("K1").setVisible(false);
    QTRY_VERIFY(w.findChild<ToolCell*>("smtTest.K1")->isHidden());
}

TEST_F(SheetFixture, UserActionsReachTheSheet) {
    sheet.add(ttCheck, "K1", "Alpha");
    sheet.add(ttOption, "O1", "One");
    sheet.add(ttOption, "O2", "Two");
    sheet.add(ttButton, "GO", "&Go");
    sheet.add(ttTextBox, "TXT", "Other:");
    SheetWidget w(sheet);
    w.show();

    QTest::mouseClick(control<QCheckBox>(w, "smtTest.K1"), Qt::LeftButton);
    EXPECT_TRUE(sheet.tool("K1").checked());
    QTest::mouseClick(control<QRadioButton>(w, "smtTest.O1"), Qt::LeftButton);
    QTest::mouseClick(control<QRadioButton>(w, "smtTest.O2"), Qt::LeftButton);
    EXPECT_FALSE(sheet.tool("O1").checked());
    EXPECT_TRUE(sheet.tool("O2").checked());
    QTRY_VERIFY(!control<QRadioButton>(w, "smtTest.O1")->isChecked());

    // Clicking the chosen option keeps it chosen and still tells the logic.
    clicks.clear();
    QTest::mouseClick(control<QRadioButton>(w, "smtTest.O2"), Qt::LeftButton);
    EXPECT_EQ(clicks, std::vector<std::string>{"O2"});
    QTRY_VERIFY(control<QRadioButton>(w, "smtTest.O2")->isChecked());

    QTest::mouseClick(control<QToolButton>(w, "smtTest.GO"), Qt::LeftButton);
    EXPECT_EQ(clicks.back(), "GO");
    auto* edit = control<QLineEdit>(w, "smtTest.TXT");
    QTest::keyClicks(edit, "1:30");
    EXPECT_EQ(sheet.tool("TXT").text(), "1:30");

    // A disabled tool ignores the user.
    sheet.tool("GO").setEnabled(false);
    clicks.clear();
    QTRY_VERIFY(!control<QToolButton>(w, "smtTest.GO")->isEnabled());
    QTest::mouseClick(control<QToolButton>(w, "smtTest.GO"), Qt::LeftButton);
    EXPECT_TRUE(clicks.empty());
}

TEST_F(SheetFixture, DropDownListTakesChoiceAndTypedText) {
    Tool& status = sheet.add(ttButton, "STATUS");
    for (int i = 0; i < 3; ++i)
        status.addItem(ttOption, "STATUS-" + std::to_string(i), std::vector<std::string>{"Done", "Defined", "Active"}[i]);
    status.setText("Defined");
    std::vector<std::string> changes;
    sheet.Change.connect([&](Tool& t, const std::string&) { changes.push_back(t.key() + "=" + t.text()); });
    SheetWidget w(sheet);
    w.show();

    auto* box = control<QComboBox>(w, "smtTest.STATUS");
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(box->count(), 3);
    EXPECT_EQ(box->currentText(), "Defined");
    box->activated(2);
    EXPECT_EQ(status.text(), "Active");
    box->lineEdit()->clear();
    QTest::keyClicks(box->lineEdit(), "Waiting");
    // Typed text reaches the model without Enter or a change of focus.
    EXPECT_EQ(status.text(), "Waiting");
    EXPECT_EQ(changes.back(), "STATUS=Waiting");
}

TEST_F(SheetFixture, RefillRebuildsOnceAndDropsStaleWidgets) {
    for (int i = 0; i < 30; ++i) sheet.add(ttCheck, "K" + std::to_string(i), "Keyword " + std::to_string(i));
    SheetWidget w(sheet);
    w.show();
    auto* old = control<QCheckBox>(w, "smtTest.K3");
    ASSERT_NE(old, nullptr);

    sheet.removeAll();
    sheet.add(ttHeading, "S", "Subject");
    sheet.add(ttCheck, "NEW", "Fresh");
    // A click on a widget of a tool that is gone does nothing.
    QTest::mouseClick(old, Qt::LeftButton);
    QTRY_VERIFY(control<QCheckBox>(w, "smtTest.NEW") != nullptr);
    EXPECT_EQ(w.cellOf("K3"), nullptr);
    EXPECT_NE(w.cellOf("NEW"), nullptr);
}

TEST_F(SheetFixture, SplitButtonAndMenuEntries) {
    Tool& add = sheet.add(ttButton, "QV2", "A&dd");
    add.addItem(ttButton, "TC", "Add to &Task Catalog");
    add.addItem(ttButton, "QV", "Add to &Quorvel");
    Tool& printing = sheet.add(ttButton, "", "Printin&g ");
    printing.addItem(ttButton, "PRINT", "&Print");
    SheetWidget w(sheet, SheetWidget::Style::Toolbar);
    w.show();

    auto* split = control<QToolButton>(w, "smtTest.QV2");
    ASSERT_NE(split, nullptr);
    EXPECT_EQ(split->popupMode(), QToolButton::MenuButtonPopup);
    QTest::mouseClick(split, Qt::LeftButton, {}, QPoint(5, split->height() / 2));
    EXPECT_EQ(clicks.back(), "QV2");
    split->menu()->findChild<QAction*>("TC")->trigger();
    EXPECT_EQ(clicks.back(), "TC");
    auto* menu = control<QToolButton>(w, "smtTest.#2");
    ASSERT_NE(menu, nullptr);
    EXPECT_EQ(menu->popupMode(), QToolButton::InstantPopup);
    menu->menu()->findChild<QAction*>("PRINT")->trigger();
    EXPECT_EQ(clicks.back(), "PRINT");

    add.item("QV")->setEnabled(false);
    QTRY_VERIFY(!split->menu()->findChild<QAction*>("QV")->isEnabled());
}

}  // namespace
}  // namespace qv
