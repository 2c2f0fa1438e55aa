#include "toolkit/CColorDialog.h"

#include "session/globals/SessionGlobals.h"
#include "toolkit/ColorChooser.h"
#include "toolkit/Failure.h"
#include "toolkit/Ports.h"
#include "toolkit/WindowHandles.h"

namespace qv {

namespace {
// Read by the chooser's hook, which has no object.
struct HookSettings {
    std::string title = "Color";
    bool center = true;
};

HookSettings& hook() {
    static HookSettings h;
    return h;
}

std::array<int32_t, 16>& customs() {
    static std::array<int32_t, 16> colors = [] {
        std::array<int32_t, 16> c{};
        c.fill(0xFFFFFF);
        return c;
    }();
    return colors;
}
}  // namespace

CColorDialog::CColorDialog() {
    hook().title = "Color";
    hook().center = true;
}

void CColorDialog::checkOwner(int32_t owner) {
    if (owner > 0 && !WindowHandles::isWindow(owner))
        throw Failure(kInvalidWindowHandle, "Invalid window handle",
                      std::string(kProjectName) + ".CColorDialog");
}

void CColorDialog::Init(int32_t flags, const std::string& title, int32_t owner, int32_t initialColor) {
    checkOwner(owner);
    flags_ = flags;
    hook().title = title;
    owner_ = owner;
    initial_ = initialColor;
}

bool CColorDialog::Show() {
    if (!ports().colorChooser) throw Failure(err::ObjectRequired, "No colour chooser is installed");
    int32_t f = flags_;
    if (initial_ >= 0) f += CC_RGBINIT;
    if (!hook().title.empty() || hook().center) f += CC_ENABLEHOOK;
    lastShowFlags_ = f;
    (void)customs();
    int32_t chosen = -1;
    if (!ports().colorChooser->choose(initial_, hook().title, hook().center, chosen)) {
        selected_ = -1;
        return false;
    }
    selected_ = chosen;
    return true;
}

bool CColorDialog::CenterDialog() const {
    return hook().center;
}

void CColorDialog::setCenterDialog(bool center) {
    hook().center = center;
}

std::string CColorDialog::DialogTitle() const {
    return hook().title;
}

void CColorDialog::setDialogTitle(const std::string& title) {
    hook().title = title;
}

void CColorDialog::setHWndOwner(int32_t owner) {
    checkOwner(owner);
    owner_ = owner;
}

const std::array<int32_t, 16>& CColorDialog::customColors() {
    return customs();
}

}  // namespace qv
