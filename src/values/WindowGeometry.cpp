#include "values/WindowGeometry.h"

#include <algorithm>
#include <filesystem>

#include "session/globals/SessionGlobals.h"
#include "toolkit/Form.h"
#include "values/Settings.h"

namespace qv {

namespace {
enum Pos : std::size_t { kTop = 0, kLeft = 1, kWidth = 2, kHeight = 3 };
}  // namespace

WindowGeometry WindowGeometry::forTAS(Form& form) { return {form, g().TASWindow, 8400, 6300, 5}; }

WindowGeometry WindowGeometry::forExistingTask(Form& form) { return {form, g().ETaskWindow, 8400, 6710, 4}; }

WindowGeometry WindowGeometry::forNewTask(Form& form) { return {form, g().TaskWindow, 8400, 6000, 4}; }

WindowGeometry::WindowGeometry(Form& form, Window& window, int32_t minWidth, int32_t minHeight,
                               std::size_t statePos)
    : form_(form), window_(window), minWidth_(minWidth), minHeight_(minHeight), statePos_(statePos) {}

void WindowGeometry::onResize() {
    const auto& geo = form_.geometry();
    if (geo.state == vbMaximized || geo.state == vbMinimized) {
        window_[statePos_] = geo.state;
        return;
    }
    if (geo.width < minWidth_ || geo.height < minHeight_)
        form_.move(geo.left, geo.top, std::max(geo.width, minWidth_), std::max(geo.height, minHeight_));
    keepNormalGeometry();
}

void WindowGeometry::onClose() {
    if (form_.geometry().state == vbNormal) keepNormalGeometry();
    SaveSettings();
}

void WindowGeometry::restore() {
    const int32_t state = window_[statePos_];
    if (state < vbNormal || state > vbMaximized) return;
    form_.move(window_[kLeft], window_[kTop], window_[kWidth], window_[kHeight]);
    // Never reopened minimised.
    if (state != vbNormal) form_.setWindowState(vbMaximized);
}

void WindowGeometry::keepNormalGeometry() {
    const auto& geo = form_.geometry();
    window_[kTop] = geo.top;
    window_[kLeft] = geo.left;
    window_[kWidth] = geo.width;
    window_[kHeight] = geo.height;
    window_[statePos_] = vbNormal;
}

std::string WindowGeometry::layoutPath(const std::string& fileName) {
    const std::string& folder = g().AppPath;
    return folder + (!folder.empty() && folder.back() == '/' ? "" : "/") + fileName;
}

bool WindowGeometry::mayLoadLayout(const std::string& path) {
    std::error_code ec;
    return g().AppVersion != 0.0f && g().AppVersion >= 10.0f && std::filesystem::exists(path, ec);
}

}  // namespace qv
