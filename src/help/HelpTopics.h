#pragma once
// The help topics by number: the page each one shows, the path the pop-up
// keeps for printing and the window's caption.

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace qv {

struct HelpTopic {
    std::string page;       // shown, relative to the program's folder
    std::string keptPath;   // kept by the pop-up; not always the page shown
    std::string title;      // the pop-up's caption
};

class HelpTopics {
public:
    // The topic of a number, or nothing for a number the table doesn't know.
    [[nodiscard]] static std::optional<HelpTopic> find(int32_t topic);
    // Every page file the table names, once each, in table order.
    [[nodiscard]] static const std::vector<std::string>& pageFiles();
};

// The folder of the pages inside the program's folder.
inline constexpr const char* kHelpFolder = "help/";
// The index of all pages.
inline constexpr int32_t kHelpIndexTopic = 5000;
// The getting started tour: the only topic with the "show at start" tool.
inline constexpr int32_t kTourTopic = 7000;

}  // namespace qv
