#pragma once
// The footer picks of the Page Setup dialog and what a stored footer text
// means when a report is printed. The dates are written at the moment the
// picks are made or the report is printed.

#include <optional>
#include <string>
#include <vector>

namespace qv {

class FooterText {
public:
    struct Pick {
        std::string caption;
        std::string tag;
    };
    static constexpr const char* kTitleTag = "Quorvel";
    static constexpr const char* kCustomTag = "--CUSTOM--";
    static constexpr const char* kBlankTag = "NONE";
    static constexpr const char* kPageNumberTag = "--Page Number--";
    static constexpr const char* kPageNumberField = "{PageNum}";

    // The eight picks, in their order, dated now.
    [[nodiscard]] static std::vector<Pick> picks(double now);
    // What a footer tool shows for a stored value; nothing for a typed text.
    [[nodiscard]] static std::optional<std::string> shownFor(const std::string& stored, double now);
    // The stored value put into the report's footer: dates of now, the page
    // number field for "Page Number" and "<#>", anything else as it is.
    [[nodiscard]] static std::string forPrint(const std::string& stored, double now);
};

}  // namespace qv
