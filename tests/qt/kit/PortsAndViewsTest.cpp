// The desktop Ui port, form windows and the pieces views are built from,
// and the editor, date box and splitter views.
#include <gtest/gtest.h>

#include <QApplication>
#include <QCalendarWidget>
#include <QDateEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include "kit/DateBoxView.h"
#include "kit/FormView.h"
#include "kit/FormWindow.h"
#include "kit/PaneBuilder.h"
#include "kit/QtUi.h"
#include "kit/SpellHighlighter.h"
#include "kit/SplitterView.h"
#include "kit/TextEditorView.h"
#include "kit/ToolCell.h"
#include "kit/ViewFactory.h"
#include "toolkit/DateBox.h"
#include "toolkit/Form.h"
#include "toolkit/Ports.h"
#include "toolkit/Sheet.h"
#include "toolkit/Splitter.h"
#include "toolkit/TextEditor.h"
#include "toolkit/Ui.h"

namespace qv {
namespace {

// Presses the answer button of the next message box, once it is up.
void answerNextBox(int32_t answer, QString* text = nullptr, QString* title = nullptr, QMessageBox::Icon* icon = nullptr) {
    auto poll = std::make_shared<QTimer>();
    poll->setInterval(10);
    QObject::connect(poll.get(), &QTimer::timeout, [=]() mutable {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (!box) return;
        poll->stop();
        if (text) *text = box->text();
        if (title) *title = box->windowTitle();
        if (icon) *icon = box->icon();
        if (auto* b = box->findChild<QPushButton*>(QStringLiteral("answer%1").arg(answer))) b->click();
        else box->reject();
        poll.reset();
    });
    poll->start();
}

TEST(QtUiPort, MessageBoxesMapStylesAndAnswers) {
    ViewFactory views;
    QtUi ui(views);
    QString text, title;
    QMessageBox::Icon icon{};
    answerNextBox(vbNo, &text, &title, &icon);
    EXPECT_EQ(ui.msgBox("Cancel creating the current task?", vbYesNo + vbQuestion, "Quorvel - Version 1.14"), vbNo);
    EXPECT_EQ(text, "Cancel creating the current task?");
    EXPECT_EQ(title, "Quorvel - Version 1.14");
    EXPECT_EQ(icon, QMessageBox::Question);

    answerNextBox(vbYes);
    EXPECT_EQ(ui.msgBox("Sure?", vbYesNoCancel + vbExclamation, "t"), vbYes);
    answerNextBox(vbCancel, nullptr, nullptr, &icon);
    EXPECT_EQ(ui.msgBox("Go?", vbOKCancel + vbCritical, "t"), vbCancel);
    EXPECT_EQ(icon, QMessageBox::Critical);
    answerNextBox(vbOK, nullptr, &title, &icon);
    EXPECT_EQ(ui.msgBox("Done.", vbInformation, ""), vbOK);
    EXPECT_EQ(icon, QMessageBox::Information);
    EXPECT_EQ(title, "Quorvel - Version 1.14");
    // A box closed without a button answers Cancel where there is one.
    answerNextBox(0);
    EXPECT_EQ(ui.msgBox("Leave?", vbRetryCancel, "t"), vbCancel);
}

class PlainForm : public Form {
public:
    PlainForm() : Form("frmPlain") {}
    int escapes = 0;
    bool refuseClose = false;

protected:
    void Form_KeyDown(int32_t key, int32_t) override {
        if (key == vbKeyEscape && ++escapes == 2) hide();
    }
    void Form_QueryUnload(bool& cancel, int32_t) override { cancel = refuseClose; }
};

TEST(QtUiPort, ModalShowEndsWhenTheModelHidesTheForm) {
    ViewFactory views;
    QtUi ui(views);
    ports().ui = &ui;
    auto form = std::make_shared<PlainForm>();
    form->setCaption("Plain - Caption");
    form->move(0, 0, 6000, 3000);
    QString shownTitle;
    bool closeRefused = false;
    ui.setWindowBuilt([&](FormWindow& w) {
        QTimer::singleShot(0, &w, [&, win = &w] {
            shownTitle = win->windowTitle();
            EXPECT_EQ(win->width(), 400);  // 6000 twips at 96 dpi
            // The close box asks the model, which may refuse.
            form->refuseClose = true;
            win->close();
            closeRefused = win->isVisible();
            QTest::keyClick(win, Qt::Key_Escape);
            QTest::keyClick(win, Qt::Key_Escape);
        });
    });
    form->showModal();
    EXPECT_EQ(shownTitle, "Plain - Caption");
    EXPECT_TRUE(closeRefused);
    EXPECT_EQ(form->escapes, 2);
    EXPECT_FALSE(form->visible());
    EXPECT_EQ(ui.windowOf(*form), nullptr);
    ports().ui = nullptr;
}

TEST(DesktopViews, EditorFollowsTheModelAndMarksMisspeltWords) {
    TextEditor model("spellTask");
    int changes = 0;
    model.Change.connect([&] { ++changes; });
    TextEditorView view(model);
    model.setText("From the model");
    EXPECT_EQ(view.toPlainText(), "From the model");
    EXPECT_EQ(changes, 1);
    view.clear();
    QTest::keyClicks(&view, "typed");
    EXPECT_EQ(model.text(), "typed");
    model.setReadOnly(true);
    EXPECT_TRUE(view.isReadOnly());

    EXPECT_FALSE(view.highlighter()->isOn());
    model.setSpellCheckOn(true);
    EXPECT_TRUE(view.highlighter()->isOn());
    EXPECT_EQ(view.highlighter()->misspelt("the quick brwn fox jumpd"), (QStringList{"brwn", "jumpd"}));
}

TEST(DesktopViews, DateBoxShowsEmptyForNoDateAndReportsPicks) {
    DateBox model("ctDeadline");
    int changes = 0;
    model.Change.connect([&] { ++changes; });
    DateBoxView view(model);
    EXPECT_EQ(view.text().trimmed(), "");
    model.setDateStyle(DateBox::DayMonthYear);
    model.setSeparator(".");
    model.setFirstDayOfWeek(1);
    model.setValue(45306.0);  // 2024-01-15
    EXPECT_EQ(view.date(), QDate(2024, 1, 15));
    EXPECT_EQ(view.text(), "15.1.2024");
    EXPECT_EQ(changes, 0);  // the program's own changes are not the user's

    view.setDate(QDate(2024, 2, 1));
    EXPECT_DOUBLE_EQ(model.value(), 45323.0);
    EXPECT_EQ(changes, 1);
    model.clear();
    EXPECT_EQ(view.text().trimmed(), "");
    EXPECT_EQ(changes, 1);

    // Opening the calendar on an empty box shows this month and picks nothing.
    view.show();
    QTest::mouseClick(&view, Qt::LeftButton, {}, QPoint(view.width() - 5, view.height() / 2));
    EXPECT_EQ(view.calendarWidget()->yearShown(), QDate::currentDate().year());
    EXPECT_EQ(view.calendarWidget()->monthShown(), QDate::currentDate().month());
    EXPECT_EQ(view.calendarWidget()->firstDayOfWeek(), Qt::Monday);
    EXPECT_FALSE(model.hasDate());
    view.calendarWidget()->window()->hide();
}

// Month and day names on screen are the locale's, whatever names the
// settings hand the model; the order and separator are the settings'.
TEST(DesktopViews, DateBoxNamesMonthsAndDaysInTheUsersLanguage) {
    const QLocale saved;
    QLocale::setDefault(QLocale(QStringLiteral("de_DE")));
    DateBox model("ctDeadline");
    model.setMonthNames("January,February,March,April,May,June,July,August,September,October,November,December");
    model.setDateStyle(DateBox::DayMonthYear);
    model.setSeparator(" ");
    model.setMonthStyle(DateBox::MonthName);
    model.setValue(45323.0);  // 2024-02-01
    DateBoxView view(model);
    EXPECT_EQ(view.text(), "1 Februar 2024");
    view.show();
    QTest::mouseClick(&view, Qt::LeftButton, {}, QPoint(view.width() - 5, view.height() / 2));
    EXPECT_EQ(view.calendarWidget()->locale().standaloneMonthName(3), "März");
    EXPECT_EQ(view.calendarWidget()->locale().dayName(1), "Montag");
    view.calendarWidget()->window()->hide();
    QLocale::setDefault(saved);
}

TEST(DesktopViews, SplitterArrangementGoesThroughTheBlob) {
    Splitter model("splitTest");
    for (const char* name : {"A", "B", "C", "D"}) model.addPane(name);
    model.setPaneMinimum(0, 1500, 1500);
    model.fixPaneHeight(3, 400);
    SplitterView view(model, {{0, 1}, {2}}, {3});
    view.resize(600, 500);
    view.show();
    QApplication::processEvents();
    EXPECT_GE(view.paneHolder(0)->minimumSizeHint().height(), 100);
    EXPECT_EQ(view.paneHolder(3)->height(), 27);

    QSplitter* column = view.splitters().at(2);
    column->setSizes({300, 100});
    const QList<int> arranged = column->sizes();
    model.AboutToSave();
    ASSERT_FALSE(model.layoutState().empty());
    column->setSizes({100, 300});
    model.LayoutLoaded();
    EXPECT_EQ(column->sizes(), arranged);
    // Someone else's blob is ignored, not applied.
    EXPECT_FALSE(view.restoreAll(QByteArray("not ours")));
}

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
