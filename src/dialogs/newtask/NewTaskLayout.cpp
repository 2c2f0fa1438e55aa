#include "dialogs/newtask/NewTaskLayout.h"

#include <filesystem>

#include "dialogs/newtask/frmTask3.h"
#include "session/globals/SessionGlobals.h"
#include "toolkit/Failure.h"

namespace qv {

namespace {
constexpr int32_t kActionsHeight = 400;
constexpr int32_t kPicSize = 1648;
}  // namespace

NewTaskLayout::NewTaskLayout(frmTask3& f) : f_(f), geometry_(WindowGeometry::forNewTask(f)) {}

std::string NewTaskLayout::layoutFile() { return WindowGeometry::layoutPath("QuorvelTask.slf"); }

void NewTaskLayout::load() {
    auto& split = f_.controls().splitTask;
    const std::string path = layoutFile();
    std::error_code ec;
    if (std::filesystem::exists(path, ec)) {
        split.clearPaneFlags();
        split.loadLayout(path);
        split.setPaneFlags();
    }
    setPaneLimits();
}

void NewTaskLayout::setPaneLimits() {
    auto& split = f_.controls().splitTask;
    for (int32_t p = paneStatus; p <= paneNotes; ++p) split.setPaneMinHeight(p, 1500);
    split.setPaneMinHeight(paneKeywords, 1205);
    for (int32_t p = paneNeeded; p <= panePic; ++p) split.setPaneMinHeight(p, 1200);
    for (int32_t p : {paneStatus, paneTask, paneNeeded}) split.setPaneMinWidth(p, 1500);
    for (int32_t p : {paneNotes, paneKeywords}) split.setPaneMinWidth(p, 1000);
    split.fixPaneHeight(paneActions, kActionsHeight);
}

// State 0 needs four non-negative numbers, else the top left corner at the
// present size; states 1 and 2 both come back maximised.
void NewTaskLayout::place() {
    const auto& w = g().TaskWindow;
    const auto& now = f_.geometry();
    switch (w[4]) {
        case vbNormal:
            if (w[0] >= 0 && w[1] >= 0 && w[2] >= 0 && w[3] >= 0) f_.move(w[1], w[0], w[2], w[3]);
            else f_.move(0, 0, now.width, now.height);
            break;
        case vbMinimized:
        case vbMaximized:
            f_.move(w[1], w[0], w[2], w[3]);
            f_.setWindowState(vbMaximized);
            break;
        default:
            break;
    }
}

void NewTaskLayout::resetLayout() {
    auto& split = f_.controls().splitTask;
    const int64_t h = f_.geometry().height;
    const int64_t w = f_.geometry().width;
    const auto part = [](int64_t x, double share) {
        const double v = static_cast<double>(x) * share;
        if (v > INT32_MAX || v < INT32_MIN) throw Failure(err::Overflow, "Overflow");
        return static_cast<int32_t>(v);
    };
    resetting_ = true;
    for (int32_t p = 0; p < split.paneCount(); ++p) {
        split.setPaneLocks(p, false, false);
        split.setPaneMinimum(p, 0, 0);
    }
    split.setPaneHeight(paneActions, kActionsHeight);
    split.setPaneHeight(panePic, kPicSize);
    split.setPaneMinWidth(panePic, kPicSize);
    split.setPaneWidth(panePic, kPicSize);
    for (int32_t p : {paneDiff, paneImp, paneNeeded}) split.setPaneHeight(p, part(h - kPicSize - kActionsHeight, 0.33));
    split.setPaneHeight(paneKeywords, part(h - kActionsHeight, 0.33));
    split.setPaneWidth(paneKeywords, part(w, 0.25));
    for (int32_t p : {paneChecklist, paneTask}) split.setPaneHeight(p, part(h - kActionsHeight, 0.33));
    split.setPaneHeight(paneStatus, 2400);
    setPaneLimits();
    resetting_ = false;
    SaveSplit();
}

void NewTaskLayout::SaveSplit() {
    if (!resetting_) f_.controls().splitTask.saveLayout(layoutFile());
}

}  // namespace qv
