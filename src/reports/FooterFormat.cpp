#include "reports/FooterFormat.h"

#include <array>
#include <utility>

namespace qv {

namespace {

enum class Marker { None, NewLine, Rule, Left, Right, PageNum };

constexpr std::array<std::pair<const char*, Marker>, 5> kMarkers{{{"{newline}", Marker::NewLine},
                                                                  {"{line}", Marker::Rule},
                                                                  {"{Left}", Marker::Left},
                                                                  {"{Right}", Marker::Right},
                                                                  {"{PageNum}", Marker::PageNum}}};

// The marker at pos, with its length.
std::pair<Marker, std::size_t> markerAt(const std::string& text, std::size_t pos) {
    for (const auto& [word, marker] : kMarkers)
        if (text.compare(pos, std::char_traits<char>::length(word), word) == 0)
            return {marker, std::char_traits<char>::length(word)};
    return {Marker::None, 1};
}

}  // namespace

std::vector<FooterFormat::Line> FooterFormat::lines(const std::string& footer, int page) {
    std::vector<Line> out(1);
    bool right = false;
    for (std::size_t pos = 0; pos < footer.size();) {
        const auto [marker, length] = markerAt(footer, pos);
        Line& line = out.back();
        switch (marker) {
            case Marker::NewLine:
                out.emplace_back();
                right = false;
                break;
            case Marker::Rule:
                line.rule = true;
                break;
            case Marker::Left:
                right = false;
                break;
            case Marker::Right:
                right = true;
                break;
            case Marker::PageNum:
                (right ? line.right : line.left) += std::to_string(page);
                break;
            case Marker::None:
                (right ? line.right : line.left) += footer[pos];
                break;
        }
        pos += length;
    }
    // A footer that starts a line at once has no first line of its own.
    if (out.size() > 1 && !out.front().rule && out.front().left.empty() && out.front().right.empty())
        out.erase(out.begin());
    return out;
}

}  // namespace qv
