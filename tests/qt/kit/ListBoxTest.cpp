// A drop-down list that makes its completer's list and pop-up on first use
// behaves as a box made whole at once.
#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QCompleter>
#include <QLineEdit>
#include <QTest>
#include <functional>
#include <vector>

#include "kit/ListBox.h"

namespace qv {
namespace {

const QStringList kEntries{"Done", "Defined", "Active", "Waiting"};

// The box as it used to be made: every part at once.
void makeWhole(QComboBox& box) {
    box.setLineEdit(new QLineEdit(&box));
    box.setInsertPolicy(QComboBox::NoInsert);
    box.setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    box.setMinimumContentsLength(12);
    box.addItems(kEntries);
}

bool hasPopup(const QComboBox& box) { return box.findChild<QAbstractItemView*>() != nullptr; }

struct Reach {
    const char* how;
    std::function<void(ListBox&)> act;
};

class ListBoxReach : public ::testing::TestWithParam<Reach> {};

TEST_P(ListBoxReach, FirstUseMakesTheRestAndKeepsTheSize) {
    QWidget window;
    auto* typing = new QLineEdit(&window);  // where the focus starts
    typing->setFocus();
    auto* box = new ListBox(&window);
    box->addItems(kEntries);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    const QSize hint = box->sizeHint();
    const QSize minimum = box->minimumSizeHint();
    EXPECT_FALSE(box->awake());
    EXPECT_FALSE(hasPopup(*box));

    GetParam().act(*box);

    EXPECT_TRUE(box->awake()) << GetParam().how;
    EXPECT_TRUE(hasPopup(*box)) << GetParam().how;
    ASSERT_NE(box->completer(), nullptr);
    EXPECT_EQ(box->completer()->model(), box->model());
    EXPECT_EQ(box->sizeAdjustPolicy(), QComboBox::AdjustToMinimumContentsLengthWithIcon);
    EXPECT_EQ(box->sizeHint(), hint) << GetParam().how;
    EXPECT_EQ(box->minimumSizeHint(), minimum) << GetParam().how;
    box->hidePopup();
}

INSTANTIATE_TEST_SUITE_P(
    Ways, ListBoxReach,
    ::testing::Values(Reach{"focus", [](ListBox& b) { b.setFocus(); QApplication::processEvents(); }},
                      Reach{"typing into the edit", [](ListBox& b) { QTest::keyClick(b.lineEdit(), Qt::Key_D); }},
                      Reach{"a key on the box", [](ListBox& b) { QTest::keyClick(&b, Qt::Key_End); }},
                      Reach{"a click on the edit", [](ListBox& b) { QTest::mouseClick(b.lineEdit(), Qt::LeftButton); }},
                      Reach{"opening", [](ListBox& b) { b.showPopup(); }}),
    [](const auto& info) { return std::to_string(info.index); });

// Sizes, matching and inline completion as the box made whole gives them.
TEST(ListBox, AnswersAsTheWholeBox) {
    QWidget window;
    auto* lazy = new ListBox(&window);
    lazy->addItems(kEntries);
    auto* whole = new QComboBox(&window);
    makeWhole(*whole);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    EXPECT_EQ(lazy->sizeHint(), whole->sizeHint());
    EXPECT_EQ(lazy->minimumSizeHint(), whole->minimumSizeHint());
    EXPECT_EQ(lazy->findText("defined"), whole->findText("defined"));
    EXPECT_EQ(lazy->count(), whole->count());

    // Typed, then left: completed inline, then taken as the entry it names.
    std::vector<QStringList> seen;
    for (QComboBox* box : {static_cast<QComboBox*>(lazy), whole}) {
        box->setFocus();
        box->lineEdit()->clear();
        QTest::keyClicks(box->lineEdit(), "wa");
        QStringList s{box->lineEdit()->text(), box->lineEdit()->selectedText()};
        window.setFocus();
        s << box->currentText() << QString::number(box->currentIndex());
        seen.push_back(s);
    }
    EXPECT_EQ(seen[0], seen[1]);
    EXPECT_EQ(seen[0].join('|'), QStringLiteral("waiting|iting|Waiting|3"));
    EXPECT_EQ(lazy->completer()->caseSensitivity(), whole->completer()->caseSensitivity());
    EXPECT_EQ(lazy->completer()->completionMode(), whole->completer()->completionMode());
}

}  // namespace
}  // namespace qv
