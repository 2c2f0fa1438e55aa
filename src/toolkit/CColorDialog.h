#pragma once
// The colour chooser of the Page Setup dialog, over the ColorChooser port.
// The title and the centring are shared by all instances, as the chooser's
// hook reads them without an object: one chooser at a time.

#include <array>
#include <cstdint>
#include <string>

#include "Export.h"

namespace qv {

class QV_EXPORT CColorDialog {
public:
    static constexpr int32_t CC_RGBINIT = 1;
    static constexpr int32_t CC_ENABLEHOOK = 16;
    static constexpr int32_t kInvalidWindowHandle = static_cast<int32_t>(0x800442E1u);

    CColorDialog();

    // Throws Failure for an owner handle that names no window.
    void Init(int32_t flags, const std::string& title, int32_t owner, int32_t initialColor);
    // Asks the user; true with SelectedColor set, false (and -1) when cancelled.
    bool Show();

    [[nodiscard]] bool CenterDialog() const;
    void setCenterDialog(bool center);
    [[nodiscard]] std::string DialogTitle() const;
    void setDialogTitle(const std::string& title);
    [[nodiscard]] int32_t flags() const { return flags_; }
    void setFlags(int32_t flags) { flags_ = flags; }
    [[nodiscard]] int32_t HWndOwner() const { return owner_; }
    // Throws Failure for a positive handle that names no window.
    void setHWndOwner(int32_t owner);
    [[nodiscard]] int32_t InitialColor() const { return initial_; }
    void setInitialColor(int32_t color) { initial_ = color; }
    [[nodiscard]] int32_t SelectedColor() const { return selected_; }

    // The flags the last Show handed to the chooser.
    [[nodiscard]] int32_t lastShowFlags() const { return lastShowFlags_; }
    // The 16 custom colours, white until the user changes them.
    [[nodiscard]] static const std::array<int32_t, 16>& customColors();

private:
    static void checkOwner(int32_t owner);

    int32_t flags_ = 0;
    int32_t owner_ = 0;
    int32_t initial_ = 0;
    int32_t selected_ = -1;
    int32_t lastShowFlags_ = 0;
};

}  // namespace qv
