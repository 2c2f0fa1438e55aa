#include "store/ConsoleReporter.h"

#include <ctime>
#include <fstream>
#include <iostream>

#include "session/globals/SessionGlobals.h"
#include "store/ADOCode.h"

namespace qv {

namespace {

std::string timestamp() {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    char text[32] = {};
    std::strftime(text, sizeof text, "%Y-%m-%d %H:%M:%S", &local);
    return text;
}

void appendToLog(const std::string& line) {
    if (g().AppPath.empty()) return;
    std::ofstream log(pathInFolder(g().AppPath, "QuorvelErrors.log"), std::ios::app | std::ios::binary);
    if (log) log << line << '\n';
}

}  // namespace

std::string ConsoleReporter::format(const FaultReport& fault) {
    std::string line = timestamp() + " " + fault.project + " " + fault.module + "." + fault.procedure +
                       " error " + std::to_string(fault.number) + " at line " + std::to_string(fault.line) +
                       ": " + fault.description + " [user:";
    for (const auto& item : fault.ustuff) line += " " + item;
    line += "]";
    if (!fault.profile.empty()) line += " [profile: " + fault.profile + "]";
    return line;
}

bool ConsoleReporter::report(const FaultReport& fault) {
    const auto line = format(fault);
    std::cerr << line << std::endl;
    appendToLog(line);
    GotErrExitNow();
    return true;
}

}  // namespace qv
