// Form windows and the pieces views are built from.
#include <gtest/gtest.h>

#include <QApplication>
#include <QDateEdit>
#include <QTest>

#include "kit/DateBoxView.h"
#include "kit/FormView.h"
#include "kit/FormWindow.h"
#include "kit/PaneBuilder.h"
#include "kit/ToolCell.h"
#include "toolkit/DateBox.h"
#include "toolkit/Form.h"
#include "toolkit/Sheet.h"

namespace qv {
namespace {

class DeadlineForm : public Form {
public:
    DeadlineForm() : Form("frmDeadline") {
        smtOther.add(ttTextBox, "DEADDATE", "Date:").setHostedControl("ctDeadline");
        addControl("smtOther", smtOther);
        addControl("ctDeadline", ctDeadline);
    }
    Sheet smtOther{"smtOther", "Status"};
    DateBox ctDeadline{"ctDeadline"};
    std::vector<Geometry> resized;

protected:
    void Form_Resize() override { resized.push_back(geometry()); }
};

class LimitedView : public FormView {
public:
    using FormView::FormView;
    [[nodiscard]] QSize minimumTwips() const override { return {4500, 3000}; }
};

TEST(FormPieces, HostedDateBoxShowsInsideItsToolAndTakesItsColour) {
    DeadlineForm form;
    QWidget parent;
    QWidget* sheet = PaneBuilder(form, &parent).sheet("smtOther");
    auto* cell = sheet->findChild<ToolCell*>("smtOther.DEADDATE");
    ASSERT_NE(cell, nullptr);
    EXPECT_EQ(cell->kind(), ToolCell::Kind::Hosted);
    auto* date = cell->findChild<DateBoxView*>("ctDeadline");
    ASSERT_NE(date, nullptr);
    form.ctDeadline.setValue(45306.0);
    EXPECT_EQ(date->date(), QDate(2024, 1, 15));
    form.smtOther.tool("DEADDATE").setForeColor(255);
    QTRY_COMPARE(date->palette().color(QPalette::Text), QColor(255, 0, 0));
    // A control the form does not have gives an empty, hidden piece.
    QWidget* missing = PaneBuilder(form, &parent).editor("spellNothing");
    EXPECT_TRUE(missing->isHidden());
}

TEST(FormPieces, WindowFollowsTwipsAndReportsTheUsersResize) {
    DeadlineForm form;
    form.setCaption("Deadline");
    form.move(1440, 720, 7200, 4320);  // 5 by 3 inches
    FormWindow window(form, new LimitedView(form));
    EXPECT_EQ(window.size(), QSize(480, 288));
    EXPECT_EQ(window.windowTitle(), "Deadline");
    // The view's limit holds the window.
    window.show();
    QApplication::processEvents();
    EXPECT_GE(window.minimumSize().width(), 300);
    EXPECT_GE(window.minimumSize().height(), 200);

    window.resize(576, 432);
    QApplication::processEvents();
    ASSERT_FALSE(form.resized.empty());
    EXPECT_EQ(form.resized.back().width, 8640);
    EXPECT_EQ(form.resized.back().height, 6480);
    form.setCaption("Renamed");
    EXPECT_EQ(window.windowTitle(), "Renamed");
}

}  // namespace
}  // namespace qv
