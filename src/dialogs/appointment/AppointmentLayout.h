#pragma once
// The window of the Task Appointment dialog: its place and size from
// TASWindow, the splitter's layout file and pane limits, the tab page in
// view, and the geometry kept on resize and close. TASWindow holds left
// before top here, and the height of the pane "Upper" in position 4; a
// window closed minimised comes back normal, not maximised as the other
// dialogs do (see WindowGeometry::forTAS).

#include <cstdint>
#include <string>

#include "values/settings/WindowGeometry.h"

namespace qv {

class frmTAS2;

class AppointmentLayout {
public:
    explicit AppointmentLayout(frmTAS2& f);

    [[nodiscard]] static std::string layoutFile();
    // The stored window, then the layout file, then the fixed pane limits.
    void restore();
    void onResize();
    // Keeps a normal window's geometry once more and saves the settings.
    void onClose();
    // The end of a splitter drag: the upper pane's height, saved at once.
    void onEndDrag();
    void SetVisibleTab(int32_t index);

private:
    void place();
    void loadLayoutFile();
    void setPaneLimits();
    void keepUpperHeight();

    frmTAS2& f_;
    WindowGeometry geometry_;
};

}  // namespace qv
