#pragma once
// The Task Appointment dialog: the description and the tabs (checklist,
// notes, about the task) beside the times and the completed box, the
// action bar under them all. The tabs out of view are built once the
// window has painted.

#include "kit/FormView.h"

namespace qv {

class SplitterView;

class AppointmentView : public FormView {
    Q_OBJECT
public:
    explicit AppointmentView(Form& form, QWidget* parent = nullptr);

    [[nodiscard]] QSize minimumTwips() const override { return {8400, 6300}; }
    [[nodiscard]] QSize defaultTwips() const override { return {9600, 7200}; }
    [[nodiscard]] SplitterView* splitter() const { return splitter_; }

private:
    QWidget* buildPane(int index);
    QWidget* buildTabs();

    SplitterView* splitter_ = nullptr;
};

}  // namespace qv
