#include "values/settings/WindowGeometry.h"

#include <algorithm>
#include <filesystem>

#include "session/globals/SessionGlobals.h"
#include "toolkit/Form.h"
#include "values/settings/Settings.h"

namespace qv {

namespace {
constexpr std::size_t kWidth = 2, kHeight = 3;
}  // namespace

WindowGeometry WindowGeometry::forTAS(Form& form) {
    return {form, g().TASWindow, 8400, 6300, Slots{1, 0, 5, false}};
}

WindowGeometry WindowGeometry::forExistingTask(Form& form) { return {form, g().ETaskWindow, 8400, 6710, Slots{}}; }

WindowGeometry WindowGeometry::forNewTask(Form& form) { return {form, g().TaskWindow, 8400, 6000, Slots{}}; }

WindowGeometry::WindowGeometry(Form& form, Window& window, int32_t minWidth, int32_t minHeight, Slots slots)
    : form_(form), window_(window), minWidth_(minWidth), minHeight_(minHeight), slots_(slots) {}

void WindowGeometry::onResize() {
    const auto& geo = form_.geometry();
    if (geo.state == vbMaximized || geo.state == vbMinimized) {
        window_[slots_.state] = geo.state;
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
    const int32_t state = window_[slots_.state];
    if (state < vbNormal || state > vbMaximized) return;
    form_.move(window_[slots_.left], window_[slots_.top], window_[kWidth], window_[kHeight]);
    // Never reopened minimised.
    if (state == vbMaximized || (state == vbMinimized && slots_.minimisedComesBackMaximised))
        form_.setWindowState(vbMaximized);
    else if (state == vbMinimized)
        form_.setWindowState(vbNormal);
}

void WindowGeometry::keepNormalGeometry() {
    const auto& geo = form_.geometry();
    window_[slots_.top] = geo.top;
    window_[slots_.left] = geo.left;
    window_[kWidth] = geo.width;
    window_[kHeight] = geo.height;
    window_[slots_.state] = vbNormal;
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
