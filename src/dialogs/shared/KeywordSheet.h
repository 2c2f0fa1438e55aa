#pragma once
// The keyword sheet of the task dialogs: headings per subject, one tick per
// keyword, then "Add Keyword"; the ticks as a key=value bag; the links of a
// task in TaskKeywords.

#include <cstdint>
#include <string>
#include <unordered_set>

namespace qv {

class Sheet;
class Tool;
class Recordset;

class KeywordSheet {
public:
    static constexpr const char* kNewKeywordKey = "kNEWKEYWORD";

    // Empties the sheet and builds it from KEYWORDS; false when the store
    // could not be read (the error path has spoken).
    static bool build(Sheet& sheet);
    // Every keyword tick's key with its checked state as text.
    [[nodiscard]] static std::string bagText(const Sheet& sheet);
    // The keys the bag holds with a value that reads as true, in one pass.
    [[nodiscard]] static std::unordered_set<std::string> tickedIn(const std::string& bag);
    [[nodiscard]] static int32_t countTicked(const Sheet& sheet);
    // Ticks the keywords linked to the task in TaskKeywords.
    static bool tickFromLinks(Sheet& sheet, const std::string& taskGUID);
    // Whether a tool of the sheet is a keyword that can be linked.
    [[nodiscard]] static bool isKeyword(const Tool& tool);
    // Appends one TaskKeywords row for a keyword tool and writes it.
    static void addLink(Recordset& rs, const Tool& keyword, const std::string& taskText,
                        const std::string& taskGUID);
    // One link per keyword of the sheet that the bag holds as true.
    static void addLinksFromBag(Recordset& rs, const Sheet& sheet, const std::string& bag,
                                const std::string& taskText, const std::string& taskGUID);
};

}  // namespace qv
