#pragma once
// A strip of tabs over panels that the dialog shows itself: the captions,
// the tab shown, and Switching when the user picks another tab (the
// dialog then shows it through setCurrent).

#include <cstdint>
#include <string>
#include <vector>

#include "Export.h"
#include "toolkit/Event.h"

namespace qv {

class QV_EXPORT TabStrip {
public:
    explicit TabStrip(std::string name = {}, std::vector<std::string> captions = {});
    TabStrip(const TabStrip&) = delete;
    TabStrip& operator=(const TabStrip&) = delete;

    [[nodiscard]] const std::string& name() const { return name_; }
    [[nodiscard]] const std::vector<std::string>& captions() const { return captions_; }
    [[nodiscard]] int32_t count() const { return static_cast<int32_t>(captions_.size()); }
    // The tab counted from 0 whose panel is shown.
    [[nodiscard]] int32_t current() const { return current_; }
    // From the program: the panel of tab is shown. Throws Failure for no such tab.
    void setCurrent(int32_t tab);
    // The user picks a tab; the dialog decides what is shown.
    void userSwitch(int32_t tab);

    Event<int32_t> Switching;
    Event<> Changed;

private:
    std::string name_;
    std::vector<std::string> captions_;
    int32_t current_ = 0;
};

}  // namespace qv
