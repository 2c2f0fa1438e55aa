#include "script/ScriptLine.h"

#include <cctype>
#include <stdexcept>

namespace qv {

namespace {
char unescape(char c) {
    switch (c) {
        case 'n': return '\n';
        case 'r': return '\r';
        case 't': return '\t';
        default: return c;
    }
}
}  // namespace

ScriptLine ScriptLine::parse(int number, const std::string& text) {
    ScriptLine line;
    line.number = number;
    std::string word;
    bool inWord = false, quoted = false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        if (quoted) {
            if (c == '\\' && i + 1 < text.size()) {
                word += unescape(text[++i]);
            } else if (c == '"') {
                quoted = false;
            } else {
                word += c;
            }
        } else if (c == '"') {
            quoted = inWord = true;
        } else if (c == '#') {
            break;
        } else if (c == ' ' || c == '\t' || c == '\r') {
            if (inWord) line.words.push_back(std::move(word));
            word.clear();
            inWord = false;
        } else {
            word += c;
            inWord = true;
        }
    }
    if (quoted) throw std::invalid_argument("unclosed quote");
    if (inWord) line.words.push_back(std::move(word));
    return line;
}

const std::string& ScriptLine::word(std::size_t i) const {
    static const std::string none;
    return i < words.size() ? words[i] : none;
}

std::string ScriptLine::lowerWord(std::size_t i) const { return lowered(word(i)); }

std::string lowered(std::string text) {
    for (auto& c : text) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return text;
}

std::string ScriptLine::rest(std::size_t from) const {
    std::string out;
    for (std::size_t i = from; i < words.size(); ++i) out += (i > from ? " " : "") + words[i];
    return out;
}

}  // namespace qv
