#include "dialogs/appointment/AppointmentLayout.h"

#include <algorithm>

#include "dialogs/appointment/frmTAS2.h"
#include "session/globals/SessionGlobals.h"
#include "values/Settings.h"
#include "values/WindowGeometry.h"

namespace qv {

namespace {
enum Pos : std::size_t { kLeft = 0, kTop, kWidth, kHeight, kUpper, kState };
constexpr int32_t kActionsHeight = 400;
}  // namespace

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
    const auto& w = g().TASWindow;
    auto& split = f_.controls().splitTAS;
    switch (w[kState]) {
        case vbNormal:
        case vbMinimized:
        case vbMaximized:
            f_.move(w[kLeft], w[kTop], w[kWidth], w[kHeight]);
            if (w[kUpper] > 0) split.setPaneHeight(paneTAUpper, w[kUpper]);
            f_.setWindowState(w[kState] == vbMaximized ? vbMaximized : vbNormal);
            break;
        default:
            break;
    }
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
    const auto& geo = f_.geometry();
    auto& w = g().TASWindow;
    if (geo.state == vbMaximized || geo.state == vbMinimized) {
        w[kState] = geo.state;
        return;
    }
    if (geo.width < kMinWidth || geo.height < kMinHeight)
        f_.move(geo.left, geo.top, std::max(geo.width, kMinWidth), std::max(geo.height, kMinHeight));
    keepNormalGeometry();
}

void AppointmentLayout::onClose() {
    if (f_.geometry().state == vbNormal) keepNormalGeometry();
    SaveSettings();
}

void AppointmentLayout::onEndDrag() {
    g().TASWindow[kUpper] = f_.controls().splitTAS.pane(paneTAUpper).height;
    SaveSettings();
}

void AppointmentLayout::keepNormalGeometry() {
    const auto& geo = f_.geometry();
    auto& w = g().TASWindow;
    w[kLeft] = geo.left;
    w[kTop] = geo.top;
    w[kWidth] = geo.width;
    w[kHeight] = geo.height;
    w[kUpper] = f_.controls().splitTAS.pane(paneTAUpper).height;
    w[kState] = vbNormal;
}

void AppointmentLayout::SetVisibleTab(int32_t index) {
    auto& tabs = f_.controls().Tabs1;
    const char* key = AppointmentControls::tabKey(index);
    if (!*key) return;
    f_.currentTab = index;
    Tool& page = tabs.tool(key);
    if (!page.checked()) page.setChecked(true);
}

}  // namespace qv
