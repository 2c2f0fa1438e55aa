#include "kit/DateBoxView.h"

#include <cmath>
#include <exception>

#include <QCalendarWidget>

#include "toolkit/DateBox.h"

namespace qv {

namespace {
// The day before any real date stands for "no date" and shows empty.
const QDate kEpoch(1899, 12, 30);

QString monthPart(int16_t style) {
    switch (style) {
    case DateBox::MonthShortName: return "MMM";
    case DateBox::MonthName: return "MMMM";
    default: return "M";
    }
}
}  // namespace

double DateBoxView::serialOf(const QDate& d) { return static_cast<double>(kEpoch.daysTo(d)); }

QDate DateBoxView::dateOf(double serial) { return kEpoch.addDays(static_cast<qint64>(std::floor(serial))); }

QString DateBoxView::formatOf(const DateBox& m) {
    const QString sep = QString::fromStdString(m.separator());
    const QString month = monthPart(m.monthStyle());
    switch (m.dateStyle()) {
    case DateBox::DayMonthYear: return "d" + sep + month + sep + "yyyy";
    case DateBox::YearMonthDay: return "yyyy" + sep + month + sep + "d";
    default: return month + sep + "d" + sep + "yyyy";
    }
}

DateBoxView::DateBoxView(DateBox& model, QWidget* parent) : QDateEdit(parent), model_(model) {
    setObjectName(QString::fromStdString(model.name()));
    setCalendarPopup(true);
    setMinimumDate(kEpoch);
    setSpecialValueText(QStringLiteral(" "));
    changed_ = EventLink(model.Changed, [this] { followModel(); });
    connect(this, &QDateEdit::dateChanged, this, &DateBoxView::userPicked);
    followModel();
}

void DateBoxView::followModel() {
    applying_ = true;
    setDisplayFormat(formatOf(model_));
    const QDate want = model_.hasDate() ? dateOf(model_.value()) : kEpoch;
    if (date() != want) setDate(want);
    applying_ = false;
}

// The calendar is made when the user may open it: a window of several date
// boxes must not pay for calendars nobody looks at.
void DateBoxView::prepareCalendar() {
    const int firstDay = model_.firstDayOfWeek();  // 0 is Sunday
    calendarWidget()->setFirstDayOfWeek(firstDay == 0 ? Qt::Sunday : static_cast<Qt::DayOfWeek>(firstDay));
}

void DateBoxView::keyPressEvent(QKeyEvent* e) {
    prepareCalendar();
    QDateEdit::keyPressEvent(e);
}

void DateBoxView::mousePressEvent(QMouseEvent* e) {
    prepareCalendar();
    QDateEdit::mousePressEvent(e);
    // With no date the calendar opens on this month, not on the empty mark.
    if (!model_.hasDate()) {
        const QDate today = QDate::currentDate();
        calendarWidget()->setCurrentPage(today.year(), today.month());
    }
}

void DateBoxView::userPicked(const QDate& d) {
    if (applying_) return;
    try {
        if (d <= kEpoch) model_.userClear();
        else model_.userSetValue(serialOf(d));
    } catch (const std::exception& e) {
        qWarning("qv: %s: %s", model_.name().c_str(), e.what());
    }
}

}  // namespace qv
