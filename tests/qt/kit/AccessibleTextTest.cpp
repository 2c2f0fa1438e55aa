// What a screen reader hears of a tool, and colours that read under a light
// and a dark palette.
#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QRadioButton>
#include <QTest>

#include "kit/AccessibleText.h"
#include "kit/Shades.h"
#include "kit/SheetWidget.h"
#include "kit/ToolCell.h"
#include "toolkit/Sheet.h"

namespace qv {
namespace {

TEST(AccessibleText, CaptionsAreSaidWithoutMnemonicsAndTrailingColons) {
    const std::pair<const char*, const char*> cases[] = {
        {"&Update Task", "Update Task"}, {"Status:\t", "Status"}, {" Add From Timer", "Add From Timer"},
        {"Printin&g ", "Printing"},      {"Save && Close", "Save & Close"}, {"Timer: 0:05", "Timer: 0:05"},
    };
    for (const auto& [caption, said] : cases) EXPECT_EQ(AccessibleText::clean(caption), said) << caption;
}

TEST(AccessibleText, AToolWithoutACaptionIsNamedByItsLabelTipKeyOrSheet) {
    Sheet s("smtReady", "Ready Sheet");
    s.add(ttHeading, {}, "Possible Points:");
    Tool& points = s.add(ttTextBox, "POINTS");
    Tool& flag = s.add(ttButton, "FLAG-1");
    flag.setTip("Missing Task Description.");
    Tool& date = s.add(ttTextBox, "DATE");
    Tool& odd = s.add(ttTextBox, "X-1");
    EXPECT_EQ(AccessibleText::nameOf(points), "Possible Points");
    EXPECT_EQ(AccessibleText::nameOf(flag), "Missing Task Description.");
    EXPECT_EQ(AccessibleText::nameOf(date), "Date");
    EXPECT_EQ(AccessibleText::nameOf(odd), "Ready Sheet");
}

// The title bar and headings under the dark palettes people use, whose
// bright text is red and whose mid tones are left light.
QPalette darkPalette() {
    QPalette p;
    p.setColor(QPalette::Window, QColor(53, 53, 53));
    p.setColor(QPalette::WindowText, Qt::white);
    p.setColor(QPalette::Base, QColor(35, 35, 35));
    p.setColor(QPalette::Text, Qt::white);
    p.setColor(QPalette::Button, QColor(53, 53, 53));
    p.setColor(QPalette::ButtonText, Qt::white);
    p.setColor(QPalette::BrightText, Qt::red);
    return p;
}

TEST(Palette, SheetTitlesHeadingsAndOwnColoursReadUnderLightAndDarkPalettes) {
    const QPalette original = QApplication::palette();
    for (const QPalette& palette : {QPalette(Qt::white), darkPalette()}) {
        QApplication::setPalette(palette);
        Sheet s("smtOther", "Status");
        s.add(ttHeading, {}, "DeadLine:");
        s.add(ttTextBox, "DEADTIME", "Time:").setForeColor(255);  // red, as a passed deadline
        SheetWidget w(s);
        w.syncNow();
        auto* title = w.findChild<QLabel*>("smtOther.title");
        ASSERT_NE(title, nullptr);
        const QPalette& tp = title->palette();
        EXPECT_GE(Shades::contrast(tp.color(title->foregroundRole()), tp.color(title->backgroundRole())), 4.5);
        EXPECT_NE(title->foregroundRole(), QPalette::BrightText);
        auto* heading = w.findChild<ToolCell*>("smtOther.#1")->control();
        EXPECT_GE(Shades::contrast(heading->palette().color(QPalette::WindowText), heading->palette().color(QPalette::Window)),
                  4.5);
        auto* time = w.findChild<ToolCell*>("smtOther.DEADTIME")->control();
        EXPECT_GE(Shades::contrast(time->palette().color(QPalette::WindowText), palette.color(QPalette::Window)),
                  Shades::kMinContrast);
    }
    QApplication::setPalette(original);
}

TEST(AccessibleText, OptionsAreRadioButtonsThatTheSheetMayUncheck) {
    Sheet s("smtImp", "Importance");
    Tool& high = s.add(ttOption, "IMP-0", "High");
    s.add(ttOption, "IMP-1", "Low");
    SheetWidget w(s);
    w.syncNow();
    auto* option = qobject_cast<QRadioButton*>(w.cellOf("IMP-0")->control());
    ASSERT_NE(option, nullptr);
    EXPECT_TRUE(option->autoExclusive());  // what makes Qt call it a radio button
    high.setChecked(true);
    w.syncNow();
    EXPECT_TRUE(option->isChecked());
    high.setChecked(false);
    w.syncNow();
    EXPECT_FALSE(option->isChecked());
    EXPECT_EQ(option->accessibleName(), "High");

    // The arrows still move between the options, as before they were radio buttons.
    w.show();
    w.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&w));
    option->setFocus();
    QTest::keyClick(option, Qt::Key_Down);
    EXPECT_EQ(QApplication::focusWidget(), w.cellOf("IMP-1")->control());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Up);
    EXPECT_EQ(QApplication::focusWidget(), option);
}

}  // namespace
}  // namespace qv
