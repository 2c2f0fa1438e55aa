#include "toolkit/TextEditor.h"

#include <array>
#include <cctype>
#include <utility>

namespace qv {

namespace {
struct Entity {
    const char* name;
    const char* text;
};
constexpr std::array<Entity, 6> kEntities{{
    {"&amp;", "&"},
    {"&lt;", "<"},
    {"&gt;", ">"},
    {"&quot;", "\""},
    {"&#39;", "'"},
    {"&nbsp;", " "},
}};

std::string lowerTagName(const std::string& tag) {
    std::string name;
    for (char c : tag) {
        if (c == '/' && name.empty()) continue;
        if (!std::isalnum(static_cast<unsigned char>(c))) break;
        name += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    }
    return name;
}

bool breaksLine(const std::string& tag) {
    const std::string name = lowerTagName(tag);
    const bool closing = !tag.empty() && tag[0] == '/';
    return name == "br" || (closing && (name == "p" || name == "div" || name == "li"));
}

// Appends the entity at html[i] (or a plain '&') and returns its length.
std::size_t appendEntity(const std::string& html, std::size_t i, std::string& out) {
    for (const auto& e : kEntities) {
        const std::string n = e.name;
        if (html.compare(i, n.size(), n) == 0) {
            out += e.text;
            return n.size();
        }
    }
    out += '&';
    return 1;
}
}  // namespace

TextEditor::TextEditor(std::string name) : name_(std::move(name)) {}

std::string TextEditor::plainOf(const std::string& html) {
    std::string out;
    std::size_t i = 0;
    while (i < html.size()) {
        const char c = html[i];
        if (c == '<') {
            const std::size_t end = html.find('>', i);
            if (end == std::string::npos) break;  // an unclosed tag hides the rest
            if (breaksLine(html.substr(i + 1, end - i - 1))) out += '\n';
            i = end + 1;
        } else if (c == '&') {
            i += appendEntity(html, i, out);
        } else if (c == '\n' || c == '\r') {
            ++i;  // markup line breaks are layout, not text
        } else {
            out += c;
            ++i;
        }
    }
    while (!out.empty() && out.back() == '\n') out.pop_back();
    return out;
}

std::string TextEditor::htmlOf(const std::string& plain) {
    std::string out;
    for (char c : plain) {
        switch (c) {
            case '&':
                out += "&amp;";
                break;
            case '<':
                out += "&lt;";
                break;
            case '>':
                out += "&gt;";
                break;
            case '"':
                out += "&quot;";
                break;
            case '\r':
                break;
            case '\n':
                out += "<br>";
                break;
            default:
                out += c;
        }
    }
    return out;
}

void TextEditor::apply(const std::string& text, const std::string& rich) {
    const bool textChanged = text != text_;
    if (!textChanged && rich == rich_) return;
    text_ = text;
    rich_ = rich;
    Changed();
    if (textChanged) Change();
}

void TextEditor::setText(const std::string& t) {
    apply(t, htmlOf(t));
}

void TextEditor::setRichText(const std::string& html) {
    apply(plainOf(html), html);
}

void TextEditor::userEdit(const std::string& t) {
    if (readOnly_ || locked_) return;
    setText(t);
}

void TextEditor::setFontName(const std::string& n) {
    fontName_ = n;
    Changed();
}

void TextEditor::setFontSize(double s) {
    fontSize_ = s;
    Changed();
}

void TextEditor::setFontBold(bool b) {
    fontBold_ = b;
    Changed();
}

void TextEditor::setSpellCheckOn(bool on) {
    spellCheckOn_ = on;
    Changed();
}

void TextEditor::bindSettings(const std::string& settingsName) {
    settingsName_ = settingsName;
    Changed();
}

void TextEditor::setReadOnly(bool r) {
    readOnly_ = r;
    Changed();
}

void TextEditor::setLocked(bool l) {
    locked_ = l;
    Changed();
}

}  // namespace qv
