#pragma once
// Reading and setting the picks of a property sheet: options and ticks
// whose Tag holds the stored number, and drop-down lists whose items carry
// the number in their Tag and the words in their caption.

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace qv {

class Sheet;
class Tool;

class SheetPicks {
public:
    static void uncheckAll(Sheet& sheet);
    // The first checked tool, or nullptr.
    [[nodiscard]] static Tool* checkedTool(const Sheet& sheet);
    // The Tag of the first checked tool as a whole number; -86 when none is.
    [[nodiscard]] static int32_t checkedTag(const Sheet& sheet);
    // Unchecks all, then checks the first tool whose Tag is value.
    static void checkByTag(Sheet& sheet, int32_t value);
    // Checks the first tool whose key is key; false when there is none.
    static bool checkByKey(Sheet& sheet, const std::string& key);

    // A drop-down list's number: the Tag of the first item whose caption
    // equals the list's text; -86 when none does.
    [[nodiscard]] static int32_t listValue(Tool& list);
    // Puts the caption of the item tagged value into the list's text.
    static void setListValue(Tool& list, int32_t value);

    // Items prefix+i captioned words[i], tagged i, into a list tool.
    static void fillList(Tool& list, const std::string& prefix, const std::vector<std::string>& words);
    // Options prefix+i captioned words[i], tagged i, onto a sheet.
    static void fillOptions(Sheet& sheet, const std::string& prefix, const std::array<std::string, 5>& words);
};

}  // namespace qv
