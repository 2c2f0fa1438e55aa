// The scenario language: every line splits into words or is refused as an
// unclosed quote; words written back quoted split into the same words.

#include <stdexcept>

#include "FuzzPorts.h"
#include "script/ScriptLine.h"

using namespace qv;

namespace {
std::string quoted(const std::string& word) {
    std::string out = "\"";
    for (const char c : word) {
        switch (c) {
            case '"':
                out += "\\\"";
                break;
            case '\\':
                out += "\\\\";
                break;
            case '\n':
                out += "\\n";
                break;
            case '\r':
                out += "\\r";
                break;
            case '\t':
                out += "\\t";
                break;
            default:
                out += c;
        }
    }
    return out + "\"";
}
}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const std::string input = fuzz::text(data, size);
    ScriptLine line;
    try {
        line = ScriptLine::parse(1, input);
    } catch (const std::invalid_argument&) {
        return 0;
    }
    std::string again;
    for (const auto& w : line.words) again += quoted(w) + " ";
    const ScriptLine back = ScriptLine::parse(2, again);
    if (back.words != line.words) fuzz::broken("quoted words did not split back the same", input);
    (void)line.rest(1);
    (void)line.word(line.words.size() + 3);
    return 0;
}
