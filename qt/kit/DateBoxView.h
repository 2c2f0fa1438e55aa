#pragma once
// The drop-down date: a QDateEdit with a calendar, written as the model's
// format settings say; empty while the model holds no date.

#include <QDateEdit>

#include "kit/EventLink.h"

namespace qv {

class DateBox;

class DateBoxView : public QDateEdit {
    Q_OBJECT
public:
    explicit DateBoxView(DateBox& model, QWidget* parent = nullptr);

    [[nodiscard]] DateBox& model() const { return model_; }
    // The day serial of a date and back.
    [[nodiscard]] static double serialOf(const QDate& d);
    [[nodiscard]] static QDate dateOf(double serial);
    // The display format that the model's settings give.
    [[nodiscard]] static QString formatOf(const DateBox& model);

protected:
    void mousePressEvent(QMouseEvent* e) override;
    void keyPressEvent(QKeyEvent* e) override;
    // Tab and Shift+Tab leave the box, empty or not; arrows move between its parts.
    bool focusNextPrevChild(bool next) override { return QWidget::focusNextPrevChild(next); }

private:
    void followModel();
    void prepareCalendar();
    void userPicked(const QDate& d);

    DateBox& model_;
    EventLink changed_;
    bool applying_ = false;
};

}  // namespace qv
