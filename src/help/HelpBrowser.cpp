#include "help/HelpBrowser.h"

namespace qv {

void HelpBrowser::Navigate(const std::string& path) {
    if (path == location_) return;
    if (hasPage()) history_.push_back(location_);
    location_ = path;
    Changed();
}

bool HelpBrowser::GoBack() {
    if (history_.empty()) return false;
    location_ = history_.back();
    history_.pop_back();
    Changed();
    return true;
}

}  // namespace qv
