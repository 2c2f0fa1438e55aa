#pragma once
// The Existing Task dialog's layout: the eight panes of splitTask and their
// limits, the reset, the layout file QuorvelETask.slf, which tab's panel is
// shown, the schedule's column widths on resize, and the window's minimum
// size with the short timer that lets the panes settle after a resize.

#include <cstdint>
#include <string>

#include "values/WindowGeometry.h"

namespace qv {

class Form;
class Splitter;
class TabStrip;
class Timer;
class ScheduleGrid;

// Panes of the splitter, by index.
enum ExistingTaskPane : int32_t {
    paneAbout = 0, paneNotes, paneTaskText, paneTabs, paneSpare, paneTimes, paneKeywordList, paneActions,
};
// Tabs of Tabs1, by index.
enum ExistingTaskTab : int16_t { tabChecklist = 0, tabSchedule = 1 };

class ExistingTaskLayout {
public:
    ExistingTaskLayout(Form& form, Splitter& splitTask, TabStrip& Tabs1, Timer& Timer2, ScheduleGrid& sked);

    // Setup: the stored layout when there may be one, then the pane limits.
    void load();
    void setPaneLimits();
    // SetSize: the window's place from ETaskWindow.
    void place() { geometry_.restore(); }
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
    void Form_Resize();
    void Timer2_Timer();
    // Form_QueryUnload: a normal window keeps its geometry, then SaveSettings.
    void onClose() { geometry_.onClose(); }

private:
    Form& form_;
    Splitter& split_;
    TabStrip& tabs_;
    Timer& timer2_;
    ScheduleGrid& sked_;
    WindowGeometry geometry_;
    int16_t visibleTab_ = tabChecklist;
    bool resetting_ = false;
};

}  // namespace qv
