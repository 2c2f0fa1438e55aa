#pragma once
// The New Task dialog: its eleven panes in their order in the splitter,
// with the banner that tells a task was added above them.

#include "kit/FormView.h"

namespace qv {

class SplitterView;

class NewTaskView : public FormView {
    Q_OBJECT
public:
    explicit NewTaskView(Form& form, QWidget* parent = nullptr);

    [[nodiscard]] QSize minimumTwips() const override { return {8400, 6000}; }
    [[nodiscard]] QSize defaultTwips() const override { return {12000, 8400}; }
    [[nodiscard]] SplitterView* splitter() const { return splitter_; }

private:
    QWidget* buildPane(int index);

    SplitterView* splitter_ = nullptr;
};

}  // namespace qv
