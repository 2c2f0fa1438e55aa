#include "installer/StoreInstaller.h"

#include <sqlite3.h>

#include <filesystem>
#include <memory>

#include "installer/DateConventions.h"
#include "installer/DefaultSettings.h"
#include "installer/HelpPages.h"
#include "installer/ServerStore.h"
#include "installer/StoreFile.h"
#include "installer/StoreSchema.h"
#include "store/ADOCode.h"
#include "store/StoreBackend.h"
#include "toolkit/Failure.h"

namespace qv {

namespace {

struct DbCloser {
    void operator()(sqlite3* db) const { sqlite3_close(db); }
};
struct StmtFinalizer {
    void operator()(sqlite3_stmt* st) const { sqlite3_finalize(st); }
};
using Db = std::unique_ptr<sqlite3, DbCloser>;
using Stmt = std::unique_ptr<sqlite3_stmt, StmtFinalizer>;

[[noreturn]] void fail(sqlite3* db, const std::string& what) {
    throw Failure(err::StoreFailure, what + ": " + (db ? sqlite3_errmsg(db) : "out of memory"));
}

void check(sqlite3* db, int rc, const std::string& what) {
    if (rc != SQLITE_OK && rc != SQLITE_DONE) fail(db, what);
}

Db createFile(const std::string& path) {
    sqlite3* raw = nullptr;
    const int rc = sqlite3_open_v2(path.c_str(), &raw, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr);
    Db db(raw);
    check(db.get(), rc, "Cannot create the store " + path);
    return db;
}

void exec(sqlite3* db, const std::string& sql) {
    check(db, sqlite3_exec(db, sql.c_str(), nullptr, nullptr, nullptr), "Cannot run " + sql);
}

void bindText(sqlite3* db, sqlite3_stmt* st, int index, const std::string& text) {
    check(db, sqlite3_bind_text(st, index, text.c_str(), static_cast<int>(text.size()), SQLITE_TRANSIENT),
          "Cannot bind a setting");
}

void insertSettings(sqlite3* db) {
    const char* sql =
        "INSERT INTO Settings (SetUser, SetSettingSection, SetSettingName, SetSettingValue, SetDefault, "
        "setSettingDisplayOrd, setSettingComment) VALUES ('1', ?1, ?2, ?3, ?3, ?4, ?5)";
    sqlite3_stmt* raw = nullptr;
    check(db, sqlite3_prepare_v2(db, sql, -1, &raw, nullptr), "Cannot prepare the settings");
    Stmt st(raw);
    for (const auto& row : defaultSettings(DateConventions::fromEnvironment())) {
        bindText(db, st.get(), 1, row.section);
        bindText(db, st.get(), 2, row.name);
        bindText(db, st.get(), 3, row.value);
        check(db, sqlite3_bind_int(st.get(), 4, row.displayOrd), "Cannot bind a setting");
        bindText(db, st.get(), 5, row.comment);
        check(db, sqlite3_step(st.get()), "Cannot add the setting " + row.section + "/" + row.name);
        sqlite3_reset(st.get());
    }
}

void buildStore(const std::string& path) {
    Db db = createFile(path);
    exec(db.get(), "BEGIN");
    for (const auto& statement : storeSchema()) exec(db.get(), statement);
    insertSettings(db.get());
    exec(db.get(), "COMMIT");
    // The journal mode belongs to the file: the store starts in WAL, so that
    // readers and the host's writer never wait on each other.
    exec(db.get(), "PRAGMA journal_mode=WAL");
}

}  // namespace

bool installStore(const std::string& folder) {
    namespace fs = std::filesystem;
    const auto path = pathInFolder(folder, kStoreFileName);
    std::error_code ec;
    if (fs::exists(path, ec)) return false;
    // Built aside and moved in whole, so a half-made store never appears.
    const auto part = path + ".part";
    fs::remove(part, ec);
    try {
        buildStore(part);
    } catch (...) {
        fs::remove(part, ec);
        throw;
    }
    fs::rename(part, path, ec);
    if (ec)
        throw Failure(err::StoreFailure, "Cannot put the store in place at " + path + ": " + ec.message());
    return true;
}

// The store's path is written absolute: the settings file is read from
// whatever folder the next program starts in.
void installSettingsFile(const std::string& folder) {
    const std::string absolute = std::filesystem::absolute(folder).lexically_normal().string();
    writeSettingsFile(folder, pathInFolder(absolute, kStoreFileName));
}

void installReportsFolder(const std::string& folder) {
    std::filesystem::create_directories(std::filesystem::path(folder) / "Quorvel Reports");
}

bool installApplicationFolder(const std::string& folder) {
    std::filesystem::create_directories(folder);
    installReportsFolder(folder);
    // A folder whose settings file names a server has no store file to make.
    if (isServerUri(storeLocationOf(folder))) {
        installHelpPages(folder, helpPagesSource());
        return false;
    }
    const bool made = installStore(folder);
    if (made || !std::filesystem::exists(pathInFolder(folder, kSettingsFileName))) installSettingsFile(folder);
    installHelpPages(folder, helpPagesSource());
    return made;
}

void installServerApplicationFolder(const std::string& folder, const std::string& uri) {
    std::filesystem::create_directories(folder);
    installReportsFolder(folder);
    installServerStore(uri);
    writeSettingsFile(folder, uri);
    installHelpPages(folder, helpPagesSource());
}

}  // namespace qv
