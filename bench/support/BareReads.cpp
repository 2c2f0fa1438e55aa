#include "support/BareReads.h"

#include <sqlite3.h>

namespace qv::bench {

const std::vector<std::string>& settingsSections() {
    static const std::vector<std::string> sections = {
        "DateFormats", "AppVersion", "Spellchecking", "UserStuff", "Status", "Importance Level",
        "Difficulty", "Time Needed", "TAS", "TASKWINDOW", "ETASK", "ETASK", "Points",
        "OutLookIntegration", "OutlookProfileString"};
    return sections;
}

int64_t walk(sqlite3* db, const std::string& sql) {
    sqlite3_stmt* st = nullptr;
    sqlite3_prepare_v2(db, sql.c_str(), -1, &st, nullptr);
    int64_t cells = 0;
    while (sqlite3_step(st) == SQLITE_ROW)
        for (int c = 0; c < sqlite3_column_count(st); ++c) cells += sqlite3_column_text(st, c) != nullptr;
    sqlite3_finalize(st);
    return cells;
}

int64_t walkSettings(sqlite3* db) {
    int64_t cells = 0;
    for (const auto& section : settingsSections())
        cells += walk(db, "SELECT * from Settings WHERE SetUser='1' and SetSettingSection = '" + section +
                              "' ORDER BY setSettingDisplayOrd");
    return cells;
}

}  // namespace qv::bench
