#pragma once
// The print settings string of a dialog: its keys, in the order the Page
// Setup dialog writes them. "RIGHT" and "LEFT" stand ahead of "FLEFT" and
// "FRIGHT", so a lookup of "LEFT=" finds its own item first.

#include <array>
#include <cstdint>
#include <string>

#include "toolkit/Translate.h"

namespace qv {

class PrintSettings {
public:
    static constexpr std::array<const char*, 16> kToolKeys{
        "PRINTER", "PAPER",  "COPIES", "PAGESWIDE", "PRINTCOLOR", "TOP",    "BOTTOM", "RIGHT",
        "LEFT",    "HCOLOR", "HFONT",  "HSIZE",     "HEADING",    "FCOLOR", "FFONT",  "FSIZE"};
    // The dialog whose string also keeps "PSCHEDULE".
    static constexpr int32_t kExistingTaskDialog = 1;
    // The one printer pick where none is installed.
    static constexpr const char* kNoPrinter = QV_N("(No Printer Installed)");

    // A boolean as the string keeps it: "True" or "False".
    [[nodiscard]] static std::string boolText(bool value);
    // "True", "False" (any case) or a number (not 0 is true); an empty
    // text is false. Anything else throws TypeMismatch.
    [[nodiscard]] static bool boolOf(const std::string& text);
    // A whole string as the Page Setup dialog would save its defaults, for
    // a host that has none yet: the default printer (or the first, or the
    // no-printer pick), margins by the locale, the program's title
    // at the left of the footer and the page number at the right.
    [[nodiscard]] static std::string defaults(int32_t dialogNum);
};

}  // namespace qv
