#pragma once
// The Existing Task dialog: its eight panes in the splitter (About and
// Notes; the task and the tabs; a spare pane, the times and the keywords;
// the tool bar along the bottom). The tabs hold the checklist and the
// schedule: its sum strip, the grid and its add and delete strip; the tab
// out of view is built once the window has painted.

#include "kit/FormView.h"

namespace qv {

class SplitterView;
class GridView;
class TabStripView;

class ExistingTaskView : public FormView {
    Q_OBJECT
public:
    explicit ExistingTaskView(Form& form, QWidget* parent = nullptr);

    [[nodiscard]] QSize minimumTwips() const override { return {8400, 6710}; }
    [[nodiscard]] QSize defaultTwips() const override { return {12000, 8400}; }
    [[nodiscard]] SplitterView* splitter() const { return splitter_; }
    // The schedule grid, once its tab is built.
    [[nodiscard]] GridView* schedule() const { return schedule_; }
    [[nodiscard]] TabStripView* tabs() const { return tabs_; }

private:
    QWidget* buildPane(int index);
    QWidget* buildTabs();
    QWidget* buildSchedule(QWidget* parent);

    SplitterView* splitter_ = nullptr;
    GridView* schedule_ = nullptr;
    TabStripView* tabs_ = nullptr;
};

}  // namespace qv
