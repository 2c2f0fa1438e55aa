#include "script/OutputChecks.h"

#include <fstream>
#include <iterator>

#include "script/PdfPages.h"
#include "script/ScriptContext.h"
#include "script/ScriptLine.h"

namespace qv {

void OutputChecks::addTo(ScriptCommands& table) {
    table.checks.insert({
        {"row", [](ScriptContext& c, const ScriptLine& l) { return row(c, l, false); }},
        {"rows", [](ScriptContext& c, const ScriptLine& l) { return row(c, l, true); }},
        {"report", [](ScriptContext& c, const ScriptLine& l) { return report(c, l, true); }},
        {"no-report", [](ScriptContext& c, const ScriptLine& l) { return report(c, l, false); }},
        {"pdfpages", &pdfPages},
    });
}

std::string OutputChecks::row(ScriptContext& c, const ScriptLine& l, bool count) {
    const auto sql = count ? "SELECT COUNT(*) FROM (" + l.word(2) + ") AS counted" : l.word(2);
    const auto actual = c.queryOne(sql);
    if (actual == l.word(3)) return {};
    return "the store gives \"" + actual + "\", not \"" + l.word(3) + "\"";
}

std::string OutputChecks::report(ScriptContext& c, const ScriptLine& l, bool present) {
    std::ifstream in(c.reportPath(l.word(2)), std::ios::binary);
    if (!present) return in ? "the report " + l.word(2) + " was written" : std::string();
    if (!in) return "no report " + l.word(2);
    const std::string text{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
    if (text.find(l.word(3)) != std::string::npos) return {};
    return "the report " + l.word(2) + " does not hold \"" + l.word(3) + "\"";
}

std::string OutputChecks::pdfPages(ScriptContext& c, const ScriptLine& l) {
    const int pages = pdfPageCount(c.reportPath(l.word(2)));
    if (pages < 0) return "no PDF " + l.word(2);
    if (std::to_string(pages) == l.word(3)) return {};
    return l.word(2) + " has " + std::to_string(pages) + " pages, not " + l.word(3);
}

}  // namespace qv
