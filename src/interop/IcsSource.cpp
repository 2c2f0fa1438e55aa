#include "interop/IcsSource.h"

#include <cstring>
#include <fstream>
#include <iterator>
#include <sstream>
#include <vector>

#include "interop/InteropError.h"
#include "toolkit/TextFill.h"
#include "toolkit/Translate.h"

namespace qv {

namespace {

// The physical lines handed to the parser one by one, as fgets would.
// A line longer than the parser's buffer goes in pieces, as fgets gives it.
struct LineFeed {
    std::vector<std::string> lines;
    std::size_t next = 0;    // the line being handed out
    std::size_t offset = 0;  // how much of it went already
    int lastLine = 0;        // 1-based: the line of the latest piece
};

char* feedLine(char* s, size_t size, void* d) {
    auto* feed = static_cast<LineFeed*>(d);
    if (feed->next >= feed->lines.size() || size < 2) return nullptr;
    const std::string& line = feed->lines[feed->next];
    const std::size_t n = std::min(line.size() - feed->offset, size - 1);
    std::memcpy(s, line.data() + feed->offset, n);
    s[n] = '\0';
    feed->lastLine = static_cast<int>(feed->next) + 1;
    feed->offset += n;
    if (feed->offset == line.size()) {
        ++feed->next;
        feed->offset = 0;
    }
    return s;
}

std::string shown(std::string line) {
    while (!line.empty() && (line.back() == '\r' || line.back() == '\n')) line.pop_back();
    constexpr std::size_t kShown = 60;
    return line.size() > kShown ? line.substr(0, kShown) + "..." : line;
}

std::vector<std::string> physicalLines(const std::string& text) {
    std::vector<std::string> lines;
    std::size_t start = 0;
    while (start < text.size()) {
        std::size_t end = text.find('\n', start);
        if (end == std::string::npos) end = text.size() - 1;
        lines.push_back(text.substr(start, end - start + 1));
        start = end + 1;
    }
    return lines;
}

// The line of the first byte that is not UTF-8, or 0.
int firstBadUtf8Line(const std::string& text) {
    int line = 1;
    for (std::size_t i = 0; i < text.size();) {
        const auto c = static_cast<unsigned char>(text[i]);
        if (c == '\n') ++line;
        const int extra = c < 0x80 ? 0 : (c >> 5) == 0x6 ? 1 : (c >> 4) == 0xE ? 2 : (c >> 3) == 0x1E ? 3 : -1;
        if (extra < 0 || i + extra >= text.size() + (extra == 0 ? 1 : 0)) return line;
        for (int k = 1; k <= extra; ++k)
            if ((static_cast<unsigned char>(text[i + k]) & 0xC0) != 0x80) return line;
        i += extra + 1;
    }
    return 0;
}

// Property names are ASCII.
std::string nameOf(const std::string& line) {
    std::string name = line.substr(0, line.find_first_of(":;"));
    for (char& c : name)
        if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
    return name;
}

bool hasError(icalcomponent* c) {
    if (icalcomponent_get_first_property(c, ICAL_XLICERROR_PROPERTY)) return true;
    for (auto* s = icalcomponent_get_first_component(c, ICAL_ANY_COMPONENT); s;
         s = icalcomponent_get_next_component(c, ICAL_ANY_COMPONENT))
        if (hasError(s)) return true;
    return false;
}

}  // namespace

IcsSource::IcsSource(std::string path) : path_(std::move(path)) {
    std::ifstream in(path_, std::ios::binary);
    if (!in) throw InteropError(path_ + " can't be read: no such file, or no permission to read it");
    text_.assign(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
    if (int bad = firstBadUtf8Line(text_)) throw InteropError::at(path_, bad, tr("the text is not UTF-8"));
    // The whole text in one go; the lines are followed one by one only to
    // name the line of a fault.
    root_.reset(icalparser_parse_string(text_.c_str()));
    if (!root_ || icalcomponent_isa(root_.get()) != ICAL_VCALENDAR_COMPONENT || hasError(root_.get())) {
        root_.reset();
        mapLines();  // throws, naming the line
        throw InteropError::at(path_, 1, tr("the file can't be read as a calendar"));
    }
    int ordinal = 0;
    numberComponents(root_.get(), ordinal);
}

void IcsSource::mapLines() const {
    if (mapped_) return;
    mapped_ = true;
    IcalComponentPtr root;
    LineFeed feed{physicalLines(text_)};
    std::unique_ptr<icalparser, decltype(&icalparser_free)> parser(icalparser_new(), icalparser_free);
    icalparser_set_gen_data(parser.get(), &feed);
    std::vector<int> open;  // ordinals of the components begun and not ended
    int lookahead = 0;
    for (;;) {
        char* raw = icalparser_get_line(parser.get(), feedLine);
        // The parser reads one line ahead: a logical line began where the
        // previous one's look-ahead stood.
        const int line = lookahead;
        lookahead = feed.lastLine;
        std::string logical = raw ? raw : "";
        icalcomponent* done = icalparser_add_line(parser.get(), raw);
        if (raw) icalmemory_free_buffer(raw);
        if (done) {
            if (root) icalcomponent_free(done);
            else root.reset(done);
        }
        if (!raw) break;
        if (logical.empty() || logical == "\r" || logical == "\n") continue;
        const std::string name = nameOf(logical);
        if (componentLines_.empty() && name != "BEGIN")
            throw InteropError::at(path_, line, tr("not an iCalendar file (it must begin with BEGIN:VCALENDAR)"));
        if (name == "BEGIN") {
            open.push_back(static_cast<int>(componentLines_.size()));
            componentLines_.push_back(line);
        } else if (name == "END") {
            if (!open.empty()) open.pop_back();
        } else if (!open.empty()) {
            propertyLines_.push_back({open.back(), line, name});
        }
        if (icalparser_get_state(parser.get()) == ICALPARSER_ERROR)
            throw InteropError::at(path_, line, fill(tr("this line can't be read: %1"), {shown(logical)}));
    }
    if (!open.empty())
        throw InteropError::at(path_, componentLines_[open.back()], tr("this BEGIN has no END"));
    if (!root || icalcomponent_isa(root.get()) != ICAL_VCALENDAR_COMPONENT)
        throw InteropError::at(path_, 1, tr("not an iCalendar file (it must begin with BEGIN:VCALENDAR)"));
}

void IcsSource::numberComponents(icalcomponent* c, int& ordinal) {
    ordinals_[c] = ordinal++;
    for (auto* s = icalcomponent_get_first_component(c, ICAL_ANY_COMPONENT); s;
         s = icalcomponent_get_next_component(c, ICAL_ANY_COMPONENT))
        numberComponents(s, ordinal);
}

int IcsSource::lineOf(icalcomponent* c) const {
    mapLines();
    auto it = ordinals_.find(c);
    if (it == ordinals_.end() || it->second >= static_cast<int>(componentLines_.size())) return 1;
    return componentLines_[it->second];
}

int IcsSource::lineOf(icalcomponent* c, icalproperty* p) const {
    mapLines();
    auto it = ordinals_.find(c);
    if (it == ordinals_.end()) return 1;
    const std::string name = icalproperty_get_property_name(p);
    int nth = 0;
    for (auto* q = icalcomponent_get_first_property(c, ICAL_ANY_PROPERTY); q && q != p;
         q = icalcomponent_get_next_property(c, ICAL_ANY_PROPERTY))
        if (name == icalproperty_get_property_name(q)) ++nth;
    const std::string wanted = nameOf(name);
    for (const auto& p : propertyLines_)
        if (p.component == it->second && p.name == wanted && nth-- == 0) return p.line;
    return lineOf(c);
}

}  // namespace qv
