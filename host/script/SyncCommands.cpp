#include "script/SyncCommands.h"

#include <chrono>
#include <filesystem>
#include <fstream>
#include <optional>
#include <stdexcept>
#include <thread>

#include "script/ScriptLine.h"
#include "values/types/Digits.h"

namespace qv {

namespace {
constexpr int64_t kDefaultWaitSeconds = 60;
constexpr int64_t kMostWaitSeconds = 3600;
constexpr auto kPoll = std::chrono::milliseconds(10);
}  // namespace

void SyncCommands::addTo(ScriptCommands& table) {
    for (const char* command : {"signal", "wait-for"}) table.commands.insert({command, &run});
}

void SyncCommands::run(ScriptContext& /*c*/, const ScriptLine& line) {
    const std::string& path = line.word(1);
    if (path.empty()) throw std::invalid_argument(line.word(0) + " needs a file");
    if (line.word(0) == "signal") {
        // Made beside and renamed, so the waiting side never sees half a file.
        const std::string part = path + ".part";
        std::ofstream(part).close();
        std::filesystem::rename(part, path);
        return;
    }
    const auto given =
        line.word(2).empty() ? std::optional<int64_t>(kDefaultWaitSeconds) : wholeNumber(line.word(2));
    if (!given || *given < 0 || *given > kMostWaitSeconds)
        throw std::invalid_argument(line.word(0) + " waits a whole number of seconds up to " +
                                    std::to_string(kMostWaitSeconds) + ", not \"" + line.word(2) + "\"");
    const int64_t seconds = *given;
    const auto until = std::chrono::steady_clock::now() + std::chrono::seconds(seconds);
    while (!std::filesystem::exists(path)) {
        if (std::chrono::steady_clock::now() > until)
            throw std::runtime_error("waited " + std::to_string(seconds) + " s for " + path);
        std::this_thread::sleep_for(kPoll);
    }
}

}  // namespace qv
