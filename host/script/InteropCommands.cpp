#include "script/InteropCommands.h"

#include <fstream>
#include <iterator>
#include <ostream>
#include <stdexcept>

#include "interop/Interop.h"
#include "script/ScriptContext.h"
#include "script/ScriptLine.h"

namespace qv {

namespace {

std::string inFolder(const std::string& folder, const std::string& file) {
    if (file.empty()) throw std::invalid_argument("a file name is missing");
    return file.front() == '/' ? file : folder + "/" + file;
}

ExportScope scopeOf(const ScriptLine& l) {
    if (l.words.size() < 3) return ExportScope::all();
    const std::string& w = l.word(2);
    if (w.rfind("project=", 0) == 0) return ExportScope::project(w.substr(8));
    if (w.rfind("task=", 0) == 0) return ExportScope::task(w.substr(5));
    if (w == "current") return ExportScope::current();
    throw std::invalid_argument("export FILE [project=KEY|task=KEY|current]");
}

}  // namespace

void InteropCommands::addTo(ScriptCommands& table) {
    table.commands.insert({{"export", &run}, {"import", &run}, {"export-csv", &run}});
    table.checks.insert({{"interop", &outcome}, {"file", &file}});
}

void InteropCommands::run(ScriptContext& c, const ScriptLine& l) {
    c.ensureStore();
    const std::string command = l.lowerWord(0);
    const std::string path = inFolder(c.folder(), l.word(1));
    InteropResult r;
    if (command == "import") r = Interop::importCalendar(path);
    else if (command == "export-csv") r = Interop::exportSpreadsheet(path);
    else r = Interop::exportCalendar(path, scopeOf(l));
    c.fileOutcome = r.message;
    auto& said = c.fileOutcome;
    for (std::size_t at; (at = said.find(c.folder() + "/")) != std::string::npos;) said.erase(at, c.folder().size() + 1);
    c.out() << command << (r.ok ? ": " : " refused: ") << said << "\n";
}

std::string InteropCommands::outcome(ScriptContext& c, const ScriptLine& l) {
    return c.fileOutcome == l.word(2) ? std::string() : "the last file command said \"" + c.fileOutcome + "\"";
}

std::string InteropCommands::file(ScriptContext& c, const ScriptLine& l) {
    std::ifstream in(inFolder(c.folder(), l.word(2)), std::ios::binary);
    const std::string text{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
    return text.find(l.word(3)) != std::string::npos ? std::string() : l.word(2) + " does not hold \"" + l.word(3) + "\"";
}

}  // namespace qv
