#include "script/InteropCommands.h"

#include <fstream>
#include <iterator>
#include <stdexcept>

#include "interop/Interop.h"
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

bool InteropCommands::handles(const std::string& command) {
    return command == "export" || command == "import" || command == "export-csv";
}

bool InteropCommands::checks(const std::string& expectation) {
    return expectation == "interop" || expectation == "file";
}

void InteropCommands::run(const std::string& folder, const ScriptLine& l, std::ostream& out) {
    const std::string command = l.word(0);
    const std::string path = inFolder(folder, l.word(1));
    InteropResult r;
    if (command == "import") r = Interop::importCalendar(path);
    else if (command == "export-csv") r = Interop::exportSpreadsheet(path);
    else r = Interop::exportCalendar(path, scopeOf(l));
    // Files of the program's folder are told by their own names.
    last_ = r.message;
    for (std::size_t at; (at = last_.find(folder + "/")) != std::string::npos;) last_.erase(at, folder.size() + 1);
    out << command << (r.ok ? ": " : " refused: ") << last_ << "\n";
}

std::string InteropCommands::check(const std::string& folder, const ScriptLine& l) const {
    if (l.word(1) == "interop")
        return last_ == l.word(2) ? std::string() : "the last file command said \"" + last_ + "\"";
    std::ifstream in(inFolder(folder, l.word(2)), std::ios::binary);
    const std::string text{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
    return text.find(l.word(3)) != std::string::npos ? std::string() : l.word(2) + " does not hold \"" + l.word(3) + "\"";
}

}  // namespace qv
