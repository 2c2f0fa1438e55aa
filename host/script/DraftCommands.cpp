#include "script/DraftCommands.h"

#include <chrono>
#include <filesystem>
#include <stdexcept>
#include <thread>

#include "dialogs/shared/DraftFile.h"
#include "dialogs/shared/DraftKeeper.h"
#include "script/ScriptContext.h"
#include "script/ScriptLine.h"
#include "values/types/Convert.h"

namespace qv {

void DraftCommands::addTo(ScriptCommands& table) {
    table.commands.insert({"draft", &where});
    table.commands.insert({"sleep", &sleep});
    table.checks.insert({"draft", &check});
}

void DraftCommands::where(ScriptContext& c, const ScriptLine& l) {
    if (l.word(1) != "where") throw std::invalid_argument("draft where");
    c.out() << "drafts: " << DraftFile::folder() << "\n";
}

void DraftCommands::sleep(ScriptContext&, const ScriptLine& l) {
    std::this_thread::sleep_for(std::chrono::milliseconds(toLong(l.word(1))));
}

// expect draft MODE [KEY] kept|none
std::string DraftCommands::check(ScriptContext&, const ScriptLine& l) {
    const std::string want = l.words.back();
    if ((want != "kept" && want != "none") || l.words.size() < 4 || l.words.size() > 5)
        throw std::invalid_argument("expect draft MODE [KEY] kept|none");
    const auto mode = static_cast<int32_t>(toLong(l.word(2)));
    const std::string key = l.words.size() == 5 ? l.word(3) : std::string();
    std::error_code ec;
    const bool kept = std::filesystem::exists(DraftFile::pathFor(DraftKeeper::keyOf(mode, key)), ec);
    if (kept == (want == "kept")) return {};
    return kept ? "a draft is kept" : "no draft is kept";
}

}  // namespace qv
