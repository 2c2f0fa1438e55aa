#include "dialogs/existingtask/ExistingTaskLayout.h"

#include "dialogs/existingtask/ScheduleGrid.h"
#include "toolkit/Failure.h"
#include "toolkit/Form.h"
#include "toolkit/Splitter.h"
#include "toolkit/TabStrip.h"
#include "values/settings/WindowGeometry.h"

namespace qv {

namespace {
constexpr int32_t kActionsHeight = 400;
constexpr int32_t kSpareHeight = 2280;
constexpr int32_t kSpareWidth = 2025;
constexpr int32_t kAboutHeight = 3930;
constexpr int32_t kNotesWidth = 2805;
constexpr int32_t kResetMinimum = 100;

// A share of a length as the pane takes it: a whole number of twips; a
// negative result is an overflow, as the splitter's pane sizes are.
int32_t share(int64_t length, double factor) {
    const double v = static_cast<double>(length) * factor;
    if (v < 0 || v > INT32_MAX) throw Failure(err::Overflow, "Overflow");
    return static_cast<int32_t>(v);
}
}  // namespace

ExistingTaskLayout::ExistingTaskLayout(Form& form, Splitter& splitTask, TabStrip& Tabs1, ScheduleGrid& sked,
                                       int16_t& visibleTab)
    : form_(form), split_(splitTask), tabs_(Tabs1), sked_(sked), visibleTab_(visibleTab) {}

// The grid's first width lays its columns out; each later one is the
// schedule panel's resize.
void ExistingTaskLayout::gridSked_Resized() {
    if (sked_.layoutPending()) sked_.applyLayoutWidths();
    else SSResizer1_ResizeComplete(4);
}

std::string ExistingTaskLayout::layoutFile() { return WindowGeometry::layoutPath("QuorvelETask.slf"); }

void ExistingTaskLayout::load() {
    const std::string path = layoutFile();
    if (WindowGeometry::mayLoadLayout(path)) {
        split_.clearPaneFlags();
        split_.loadLayout(path);
        split_.setPaneFlags();
    }
    setPaneLimits();
}

void ExistingTaskLayout::setPaneLimits() {
    split_.setPaneMinimum(paneAbout, 1500, 1500);
    split_.setPaneMinHeight(paneNotes, 1500);
    split_.setPaneMinHeight(paneTaskText, 1500);
    split_.setPaneMinimum(paneTabs, 1500, 1500);
    split_.setPaneMinimum(paneTimes, 400, 1905);
    split_.setPaneMinHeight(paneKeywordList, 1500);
    split_.fixPaneHeight(paneActions, kActionsHeight);
}

// Each column adds up to the height less the actions strip.
void ExistingTaskLayout::resetLayout() {
    resetting_ = true;
    for (int32_t p = 0; p < split_.paneCount(); ++p) {
        split_.setPaneLocks(p, false, false);
        split_.setPaneMinimum(p, kResetMinimum, kResetMinimum);
    }
    const int64_t h = form_.geometry().height;
    split_.setPaneHeight(paneActions, kActionsHeight);
    split_.setPaneHeight(paneSpare, kSpareHeight);
    split_.setPaneWidth(paneSpare, kSpareWidth);
    for (int32_t p : {paneKeywordList, paneTimes}) split_.setPaneHeight(p, share(h - kSpareHeight - kActionsHeight, 0.5));
    split_.setPaneHeight(paneTabs, share(h - kActionsHeight, 0.67));
    split_.setPaneHeight(paneTaskText, share(h - kActionsHeight, 0.33));
    split_.setPaneHeight(paneAbout, kAboutHeight);
    split_.setPaneHeight(paneNotes, share(h - kActionsHeight - 3915, 1.0));
    split_.setPaneWidth(paneNotes, kNotesWidth);
    split_.setPaneHeight(paneSpare, kSpareHeight);
    setPaneLimits();
    split_.setPaneFlags();
    resetting_ = false;
    SaveSplit();
}

bool ExistingTaskLayout::SaveSplit() {
    split_.saveLayout(layoutFile());
    return true;
}

void ExistingTaskLayout::Form_Load() {
    visibleTab_ = tabChecklist;
    SetVisibleTab(tabChecklist);
}

void ExistingTaskLayout::SetVisibleTab(int16_t tab) {
    tabs_.setCurrent(tab);
    visibleTab_ = tab;
}

void ExistingTaskLayout::splitTask_SplitterEndDrag() {
    SetVisibleTab(visibleTab_);
    SaveSplit();
}

void ExistingTaskLayout::Tabs1_Switching(int32_t tab) { SetVisibleTab(static_cast<int16_t>(tab)); }

// The panels place their own children; the schedule panel also sets the
// grid's column widths, by the resize factors.
void ExistingTaskLayout::SSResizer1_ResizeComplete(int32_t index) {
    if (index == 4) sked_.applyResizeWidths();
}

}  // namespace qv
