#include "support/BenchStore.h"

#include <sqlite3.h>
#include <stdlib.h>

#include <filesystem>
#include <stdexcept>

#include "installer/SampleData.h"
#include "installer/ServerStore.h"
#include "installer/StoreFile.h"
#include "installer/StoreInstaller.h"
#include "session/globals/SessionGlobals.h"
#include "store/ADOCode.h"
#include "toolkit/Ports.h"

namespace qv::bench {

BenchStore::BenchStore(const std::string& name) {
    auto pattern = (std::filesystem::temp_directory_path() / ("quorvel-" + name + "-XXXXXX")).string();
    if (!mkdtemp(pattern.data())) throw std::runtime_error("no temporary folder");
    folder_ = pattern;
    installStore(folder_);
    installSettingsFile(folder_);
    use();
}

BenchStore::BenchStore(const std::string& name, const std::string& serverUri) {
    auto pattern = (std::filesystem::temp_directory_path() / ("quorvel-" + name + "-XXXXXX")).string();
    if (!mkdtemp(pattern.data())) throw std::runtime_error("no temporary folder");
    folder_ = pattern;
    server_ = makeScratchServerStore(serverUri);
    writeSettingsFile(folder_, server_);
    use();
}

BenchStore::~BenchStore() {
    if (!server_.empty()) dropScratchServerStore(server_);
    std::error_code ec;
    std::filesystem::remove_all(folder_, ec);
}

void BenchStore::use() {
    resetGlobals();
    g().AppPath = folder_;
    ports() = Ports{};
    ports().ui = &ui;
    ports().clock = &clock;
    ports().reporter = &reporter;
}

std::string BenchStore::storePath() const { return server_.empty() ? pathInFolder(folder_, kStoreFileName) : server_; }

namespace {

// A task with keywords linked and appointments of an hour each.
void addTask(const std::string& path, const std::string& key, int keywords, int appointments) {
    StoreFile store(path);
    store.exec("BEGIN");
    store.exec("INSERT INTO TASKS (tskGUIDID, tskDesc, tskProject, tskProjectKey, tskStatus, tskImp, "
               "tskDifficulty, tskTimeNeeded, tskTimeSpent, tskTimeScheduled, tskCurrent, tskPossPoints, "
               "tskHasSchedule, tskDeadline) VALUES ('" + key + "', 'Busy task', 'Project 001', "
               "'P0000001-0000-0000-0000-000000000000', 1, 2, 2, 90, 30, 0, 1, 10, " +
               std::string(appointments > 0 ? "1" : "0") + ", '2030-01-01T12:00:00.000')");
    store.exec("INSERT INTO TaskKeywords (ktTASKGUID, ktTask, ktKEYGUID, ktKeyword) SELECT '" + key +
               "', 'Busy task', keyGUIDID, keyKeyword FROM KEYWORDS ORDER BY keyGUIDID LIMIT " +
               std::to_string(keywords));
    if (appointments > 0)
        store.exec("WITH RECURSIVE n(i) AS (SELECT 0 UNION ALL SELECT i + 1 FROM n WHERE i < " +
                   std::to_string(appointments - 1) +
                   ") INSERT INTO TASKAPPTS (taGUIDID, taTaskGUIDID, taProject, taProjectGUIDID, taStartTime, "
                   "taEndTime, taTaskDesc, taImp, taDifficulty, taWasWorked, taTimeWorked) SELECT "
                   "printf('A%07d-0000-0000-0000-000000000000', i), '" + key +
                   "', 'Project 001', 'P0000001-0000-0000-0000-000000000000', "
                   "strftime('%Y-%m-%dT%H:%M:%S.000', '2026-01-01', printf('+%d hours', 2 * i)), "
                   "strftime('%Y-%m-%dT%H:%M:%S.000', '2026-01-01', printf('+%d hours', 2 * i + 1)), "
                   "'Busy task', 2, 2, 0, 0 FROM n");
    store.exec("COMMIT");
}

}  // namespace

BenchStore& largeStore() {
    static BenchStore* s = [] {
        auto* store = new BenchStore("large");
        fillSampleStore(store->storePath(), {100000, 500, kLargeKeywords, 50});
        addTask(store->storePath(), kBusyTask, 50, 200);
        addTask(store->storePath(), kTwentyTask, 20, 0);
        return store;
    }();
    return *s;
}

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

int64_t walkDialogLists(sqlite3* db) {
    int64_t cells = 0;
    for (const auto& section : settingsSections())
        cells += walk(db, "SELECT * from Settings WHERE SetUser='1' and SetSettingSection = '" + section +
                              "' ORDER BY setSettingDisplayOrd");
    cells += walk(db, "SELECT prjGUIDID, prjProject from PROJECTS ORDER BY prjProject");
    cells += walk(db, "SELECT * from KEYWORDS ORDER BY keySubject, keyKeyword");
    return cells;
}

}  // namespace qv::bench
