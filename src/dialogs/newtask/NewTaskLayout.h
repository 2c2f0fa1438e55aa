#pragma once
// The New Task dialog's layout: the splitter's panes and their limits, the
// stored layout file, the window's place from TaskWindow and its reset.

#include <string>

#include "values/settings/WindowGeometry.h"

namespace qv {

class frmTask3;

class NewTaskLayout {
public:
    explicit NewTaskLayout(frmTask3& f);

    // Form_Load: the stored layout if there is one, then the pane limits.
    void load();
    // Places the dialog from TaskWindow.
    void place();
    void resetLayout();
    void SaveSplit();
    void onResize() { geometry_.onResize(); }
    void onClose() { geometry_.onClose(); }

private:
    void setPaneLimits();
    [[nodiscard]] static std::string layoutFile();

    frmTask3& f_;
    WindowGeometry geometry_;
    bool resetting_ = false;
};

}  // namespace qv
