#pragma once
// Reads a footer text with its markers into lines for the print engine:
// {newline} starts a line, {line} rules one above its text, {Left} and
// {Right} put what follows at the left or the right, and {PageNum} is the
// page's number.

#include <string>
#include <vector>

namespace qv {

class FooterFormat {
public:
    struct Line {
        bool rule = false;
        std::string left;
        std::string right;
    };
    [[nodiscard]] static std::vector<Line> lines(const std::string& footer, int page);
};

}  // namespace qv
