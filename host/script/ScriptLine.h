#pragma once
// One line of a scenario script, split into words. Double quotes group a
// word; inside them \" is a quote, \n a line feed, \r a carriage return,
// \t a tab and \\ a backslash. '#' starts a comment outside quotes.

#include <string>
#include <vector>

namespace qv {

struct ScriptLine {
    int number = 0;
    std::vector<std::string> words;

    // Throws std::invalid_argument for an unclosed quote.
    static ScriptLine parse(int number, const std::string& text);
    [[nodiscard]] const std::string& word(std::size_t i) const;
    [[nodiscard]] std::string rest(std::size_t from) const;  // words from i joined by blanks
    [[nodiscard]] std::string lowerWord(std::size_t i) const;  // a keyword, in any case
};

// A keyword as the driver compares it: in lower case.
[[nodiscard]] std::string lowered(std::string text);

}  // namespace qv
