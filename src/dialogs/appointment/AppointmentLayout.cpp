#include "dialogs/appointment/AppointmentLayout.h"

#include "dialogs/appointment/frmTAS2.h"
#include "session/globals/SessionGlobals.h"
#include "values/settings/Settings.h"

namespace qv {

namespace {
constexpr std::size_t kUpper = 4;  // the upper pane's height in TASWindow
constexpr int32_t kActionsHeight = 400;
}  // namespace

AppointmentLayout::AppointmentLayout(frmTAS2& f) : f_(f), geometry_(WindowGeometry::forTAS(f)) {}

std::string AppointmentLayout::layoutFile() { return WindowGeometry::layoutPath("QuorvelTAS.slf"); }

void AppointmentLayout::restore() {
    place();
    loadLayoutFile();
    f_.controls().ctTADate.setDayLetters(g().DateFormats[19]);
    try {
        setPaneLimits();
    } catch (...) {
        // The limits are a nicety: a splitter that refuses them keeps its own.
    }
}

void AppointmentLayout::place() {
    geometry_.restore();
    const int32_t upper = g().TASWindow[kUpper];
    if (upper > 0) f_.controls().splitTAS.setPaneHeight(paneTAUpper, upper);
}

void AppointmentLayout::loadLayoutFile() {
    const std::string path = layoutFile();
    if (!WindowGeometry::mayLoadLayout(path)) return;
    auto& split = f_.controls().splitTAS;
    split.clearPaneFlags();
    split.loadLayout(path);
    split.setPaneFlags();
}

void AppointmentLayout::setPaneLimits() {
    auto& split = f_.controls().splitTAS;
    for (int32_t p : {paneTAUpper, paneTATimes, paneTAReady, paneTAActions}) split.setPaneMinHeight(p, 1500);
    split.setPaneMinHeight(paneTATabs, 1935);
    split.setPaneHeight(paneTATabs, 2310);
    split.setPaneLocks(paneTAActions, false, false);
    split.setPaneHeight(paneTAActions, kActionsHeight);
    split.setPaneMinHeight(paneTAActions, kActionsHeight);
    split.fixPaneHeight(paneTAActions, kActionsHeight);
}

void AppointmentLayout::onResize() {
    geometry_.onResize();
    if (f_.geometry().state == vbNormal) keepUpperHeight();
}

void AppointmentLayout::onClose() {
    if (f_.geometry().state == vbNormal) keepUpperHeight();
    geometry_.onClose();
}

void AppointmentLayout::onEndDrag() {
    keepUpperHeight();
    SaveSettings();
}

void AppointmentLayout::keepUpperHeight() {
    g().TASWindow[kUpper] = f_.controls().splitTAS.pane(paneTAUpper).height;
}

void AppointmentLayout::SetVisibleTab(int32_t index) {
    f_.controls().Tabs1.setCurrent(index);
    f_.currentTab = index;
}

}  // namespace qv
