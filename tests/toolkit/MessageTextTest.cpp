#include <gtest/gtest.h>

#include "toolkit/MessageText.h"

namespace qv {

TEST(MessageText, QuotedTextsAreCutAtACharacterWithAnEllipsis) {
    const std::string e = "\u00e9";  // two bytes, one character
    const struct {
        std::string text;
        std::size_t limit;
        std::string cut;
    } cases[] = {
        {"", 3, ""},
        {"abc", 3, "abc"},
        {"abcd", 3, "abc\u2026"},
        {e + e + e, 3, e + e + e},
        {e + e + e + e, 3, e + e + e + "\u2026"},
        {std::string(1 << 20, 'x'), kQuotedLimit, std::string(kQuotedLimit, 'x') + "\u2026"},
    };
    for (const auto& c : cases) EXPECT_EQ(cutForMessage(c.text, c.limit), c.cut) << c.text.size();
}

}  // namespace qv
