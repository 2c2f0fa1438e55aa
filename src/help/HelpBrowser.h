#pragma once
// The browser pane of the help pop-up: where it stands and where it has
// been. The view draws the page at LocationURL and reports the links the
// user follows; Back walks the way back.

#include <functional>
#include <string>
#include <vector>

#include "toolkit/Event.h"

namespace qv {

class HelpBrowser {
public:
    // The location of a pane that was never sent anywhere.
    static constexpr const char* kNoLocation = "http:///";

    [[nodiscard]] const std::string& LocationURL() const { return location_; }
    [[nodiscard]] bool hasPage() const { return location_ != kNoLocation; }
    [[nodiscard]] bool canGoBack() const { return !history_.empty(); }

    // The program sends the pane to a page.
    void Navigate(const std::string& path);
    // The user followed a link inside the page: to the page the picker
    // names for it (the page of the user's language), else to the link.
    void followed(const std::string& path) { Navigate(pick_ ? pick_(path) : path); }
    void setPagePicker(std::function<std::string(const std::string&)> pick) { pick_ = std::move(pick); }
    // Back to the page before; false when there is none.
    bool GoBack();

    Event<> Changed;

private:
    std::string location_ = kNoLocation;
    std::vector<std::string> history_;
    std::function<std::string(const std::string&)> pick_;
};

}  // namespace qv
