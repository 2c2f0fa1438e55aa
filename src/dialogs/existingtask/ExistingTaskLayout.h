#pragma once
// The Existing Task dialog's layout: the eight panes of splitTask and their
// limits, the reset, the layout file QuorvelETask.slf, which tab's panel is
// shown, and the schedule's column widths on resize.

#include <cstdint>
#include <string>

namespace qv {

class Form;
class Splitter;
class TabStrip;
class ScheduleGrid;

// Panes of the splitter, by index.
enum ExistingTaskPane : int32_t {
    paneAbout = 0, paneNotes, paneTaskText, paneTabs, paneSpare, paneTimes, paneKeywordList, paneActions,
};
// Tabs of Tabs1, by index.
enum ExistingTaskTab : int16_t { tabChecklist = 0, tabSchedule = 1 };

class ExistingTaskLayout {
public:
    // visibleTab: the dialog's VisibleTab.
    ExistingTaskLayout(Form& form, Splitter& splitTask, TabStrip& Tabs1, ScheduleGrid& sked, int16_t& visibleTab);

    // Setup: the stored layout when there may be one, then the pane limits.
    void load();
    void setPaneLimits();
    // "RESETL". A window under 2680 twips high overflows.
    void resetLayout();
    bool SaveSplit();
    [[nodiscard]] static std::string layoutFile();

    // Form_Load: the checklist tab first.
    void Form_Load();
    void SetVisibleTab(int16_t tab);
    [[nodiscard]] int16_t VisibleTab() const { return visibleTab_; }
    [[nodiscard]] bool ResettingLayout() const { return resetting_; }

    // Handlers of the dialog's layout events.
    void splitTask_SplitterEndDrag();
    void Tabs1_Switching(int32_t tab);
    void SSResizer1_ResizeComplete(int32_t index);
    void gridSked_Resized();

private:
    Form& form_;
    Splitter& split_;
    TabStrip& tabs_;
    ScheduleGrid& sked_;
    int16_t& visibleTab_;
    bool resetting_ = false;
};

}  // namespace qv
