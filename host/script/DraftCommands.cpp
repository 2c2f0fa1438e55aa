#include "script/DraftCommands.h"

#include <chrono>
#include <filesystem>
#include <stdexcept>
#include <thread>

#include "dialogs/shared/DraftFile.h"
#include "dialogs/shared/DraftKeeper.h"
#include "script/ScriptLine.h"
#include "values/Convert.h"

namespace qv {

bool DraftCommands::handles(const std::string& command) { return command == "draft" || command == "sleep"; }

void DraftCommands::run(const ScriptLine& l, std::ostream& out) {
    if (l.word(0) == "sleep") {
        std::this_thread::sleep_for(std::chrono::milliseconds(toLong(l.word(1))));
        return;
    }
    if (l.word(1) == "where") {
        out << "drafts: " << DraftFile::folder() << "\n";
        return;
    }
    const std::string want = l.words.empty() ? std::string() : l.words.back();
    if ((want != "kept" && want != "none") || l.words.size() < 3 || l.words.size() > 4)
        throw std::invalid_argument("draft where, or draft MODE [KEY] kept|none");
    const auto mode = static_cast<int32_t>(toLong(l.word(1)));
    const std::string key = l.words.size() == 4 ? l.word(2) : std::string();
    std::error_code ec;
    const bool kept = std::filesystem::exists(DraftFile::pathFor(DraftKeeper::keyOf(mode, key)), ec);
    if (kept != (want == "kept"))
        throw std::runtime_error(kept ? "a draft is kept" : "no draft is kept");
}

}  // namespace qv
