#include "script/SessionCommands.h"

#include <filesystem>
#include <fstream>
#include <map>
#include <stdexcept>
#include <vector>

#include "installer/StoreFile.h"
#include "reports/PrintSettings.h"
#include "script/ScriptContext.h"
#include "script/ScriptLine.h"
#include "toolkit/FakeClock.h"
#include "values/types/Convert.h"
#include "values/types/DateSerial.h"

namespace qv {

void SessionCommands::addTo(ScriptCommands& table) {
    table.commands.insert({{"home", &home},
                           {"sql", &sql},
                           {"mop", &mop},
                           {"setup", &setup},
                           {"advance", &advance},
                           {"clock", &clock},
                           {"settings-file", &settingsFile}});
}

std::optional<double> SessionCommands::scriptDate(std::string text) {
    if (auto iso = dateserial::fromIso(text)) return iso;
    if (text.size() >= 16 && text[10] == ' ') {
        text[10] = 'T';
        if (text.size() == 16) text += ":00";
        if (auto iso = dateserial::fromIso(text)) return iso;
        if (auto iso = dateserial::fromIso(text + ".000")) return iso;
    }
    return tryToDate(text);
}

void SessionCommands::home(ScriptContext& c, const ScriptLine& l) { c.useHome(l.word(1)); }

void SessionCommands::sql(ScriptContext& c, const ScriptLine& l) {
    c.ensureStore();
    StoreFile(c.storePath()).exec(l.word(1));
}

void SessionCommands::mop(ScriptContext& c, const ScriptLine& l) {
    c.ensureStore();
    c.task().SetMOP(l.word(1));
}

void SessionCommands::setup(ScriptContext& c, const ScriptLine& l) {
    c.ensureStore();
    std::map<std::string, std::string> args;
    for (std::size_t i = 2; i < l.words.size(); ++i) {
        const auto& w = l.words[i];
        const auto eq = w.find('=');
        if (eq == std::string::npos) throw std::invalid_argument("setup takes name=value words: " + w);
        args[lowered(w.substr(0, eq))] = w.substr(eq + 1);
    }
    const std::vector<std::string> ustuff{"1", "Script User", "", "", "", ""};
    const int32_t dialog = args.count("dialog") ? static_cast<int32_t>(toLong(args["dialog"])) : 0;
    // Without print= the dialog gets the whole default string a host would give.
    const std::string print = args.count("print") ? args["print"] : PrintSettings::defaults(dialog);
    c.task().SetupTask(static_cast<int32_t>(toLong(l.word(1))), args["task"], ustuff, dialog, print, args["ta"],
                       args["project"]);
}

void SessionCommands::advance(ScriptContext& c, const ScriptLine& l) { c.clock().advance(toLong(l.word(1))); }

void SessionCommands::clock(ScriptContext& c, const ScriptLine& l) {
    const auto serial = scriptDate(l.rest(1));
    if (!serial) throw std::invalid_argument("not a date and time: " + l.rest(1));
    c.clock().setNow(*serial);
}

void SessionCommands::settingsFile(ScriptContext& c, const ScriptLine& l) {
    c.ensureStore();
    std::ofstream file(std::filesystem::path(c.folder()) / "QuorvelSettings.txt", std::ios::binary | std::ios::trunc);
    file << l.word(1);
    if (!file) throw std::runtime_error("cannot write QuorvelSettings.txt");
}

}  // namespace qv
