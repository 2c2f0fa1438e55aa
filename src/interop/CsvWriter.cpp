#include "interop/CsvWriter.h"

#include "interop/StoreTables.h"
#include "interop/TaskSelection.h"
#include "session/globals/SessionGlobals.h"
#include "values/types/DateSerial.h"
#include "values/settings/Settings.h"
#include "values/settings/TimeValues.h"

namespace qv {

namespace {

constexpr double kNoDate = 1.0;

std::string number(const Row& row, const char* column) {
    auto it = row.find(column);
    return it == row.end() ? std::string() : std::to_string(it->second.toInt32());
}

std::string duration(const Row& row, const char* column) {
    auto it = row.find(column);
    return it == row.end() ? std::string() : SetTimeFormat(it->second.toInt32());
}

// To the minute, as the list shows it.
std::string deadline(const Row& row) {
    auto it = row.find("tskDeadline");
    if (it == row.end() || it->second.toDate().serial <= kNoDate) return {};
    return dateserial::toIso(it->second.toDate().serial).substr(0, 16).replace(10, 1, " ");
}

std::string statusWord(const Row& row) {
    auto it = row.find("tskStatus");
    if (it == row.end()) return {};
    const auto& words = g().StatusList;
    const int index = it->second.toInt32();
    return index >= 0 && index < static_cast<int>(words.size()) ? words[index] : std::to_string(index);
}

}  // namespace

std::string CsvWriter::field(const std::string& text) {
    if (text.find_first_of("\",\r\n") == std::string::npos) return text;
    std::string quoted = "\"";
    for (char c : text) {
        if (c == '"') quoted += '"';
        quoted += c;
    }
    return quoted + "\"";
}

std::string CsvWriter::line(const std::vector<std::string>& fields) {
    std::string out;
    for (std::size_t i = 0; i < fields.size(); ++i) out += (i ? "," : "") + field(fields[i]);
    return out + "\r\n";
}

std::string CsvWriter::taskList(int& rows) {
    LoadSettings();
    std::string out = line({"Description", "Project", "Status", "Deadline", "Time Needed", "Time Needed (minutes)",
                            "Time Spent", "Time Spent (minutes)", "Possible Points"});
    const auto tasks = TableSet(StoreTable::Tasks).rows(columns::tasks());
    rows = static_cast<int>(tasks.size());
    for (const auto& t : tasks)
        out += line({textOf(t, "tskDesc"), textOf(t, "tskProject"), statusWord(t), deadline(t),
                     duration(t, "tskTimeNeeded"), number(t, "tskTimeNeeded"), duration(t, "tskTimeSpent"),
                     number(t, "tskTimeSpent"), number(t, "tskPossPoints")});
    return out;
}

}  // namespace qv
