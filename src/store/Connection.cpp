#include "store/Connection.h"

#include <sys/stat.h>
#include <sys/statvfs.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <map>
#include <vector>

#include "toolkit/Failure.h"
#include "toolkit/MessageText.h"
#include "toolkit/TextFill.h"
#include "toolkit/Translate.h"

namespace qv {

namespace {

constexpr int kBusyTimeoutMs = 5000;
constexpr size_t kMaxCachedStatements = 128;
constexpr const char* kNotAStore = QV_N("is not a Quorvel data file");

std::map<std::string, std::shared_ptr<Connection>>& registry() {
    static std::map<std::string, std::shared_ptr<Connection>> connections;
    return connections;
}

std::string quotedPath(const std::string& path) {
    return "\"" + cutForMessage(path) + "\"";
}

[[noreturn]] void storeFailure(const std::string& message, std::string_view context) {
    throw Failure(err::StoreFailure, cutForMessage(message) + " (" + cutForMessage(context) + ")", "Store");
}

// True when the file system that holds path has no room left: an engine
// that can't write its journal or lock file says "disk I/O error" then.
bool diskFull(const std::string& path) {
    const auto slash = path.find_last_of('/');
    const std::string folder = slash == std::string::npos ? "." : path.substr(0, std::max<size_t>(slash, 1));
    struct statvfs fs {};
    return ::statvfs(folder.c_str(), &fs) == 0 && fs.f_bavail == 0;
}

// The one clear sentence where there is one, else the engine's words and
// what was being done.
[[noreturn]] void failWith(const std::string& clear, const std::string& engine, std::string_view context) {
    if (!clear.empty()) throw Failure(err::StoreFailure, clear + ".", "Store");
    storeFailure(engine, context);
}

char lower(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

size_t findNoCase(const std::string& hay, std::string_view needle) {
    if (needle.size() > hay.size()) return std::string::npos;
    for (size_t i = 0; i + needle.size() <= hay.size(); ++i) {
        size_t k = 0;
        while (k < needle.size() && lower(hay[i + k]) == lower(needle[k])) ++k;
        if (k == needle.size()) return i;
    }
    return std::string::npos;
}

struct FileFacts {
    bool exists = false;
    bool isFile = false;
    bool writable = false;
    bool folderWritable = true;
    int64_t size = 0;
    uint64_t dev = 0;
    uint64_t ino = 0;
    int error = 0;
};

FileFacts examine(const std::string& path) {
    FileFacts f;
    struct stat st {};
    if (::stat(path.c_str(), &st) != 0) {
        f.error = errno;
        return f;
    }
    f.exists = true;
    f.isFile = S_ISREG(st.st_mode);
    f.writable = (st.st_mode & (S_IWUSR | S_IWGRP | S_IWOTH)) != 0;
    f.size = static_cast<int64_t>(st.st_size);
    f.dev = static_cast<uint64_t>(st.st_dev);
    f.ino = static_cast<uint64_t>(st.st_ino);
    // The folder holds the journal beside the file: without write permission
    // bits on it the store can't be written (judged by the bits, so root too).
    const auto slash = path.find_last_of('/');
    const std::string folder = slash == std::string::npos ? "." : (slash == 0 ? "/" : path.substr(0, slash));
    struct stat dir {};
    if (::stat(folder.c_str(), &dir) == 0)
        f.folderWritable = (dir.st_mode & (S_IWUSR | S_IWGRP | S_IWOTH)) != 0;
    return f;
}

// Text of the first column of a one-row pragma or query; empty on failure.
std::string pragmaText(sqlite3* db, const char* sql, int* rcOut = nullptr) {
    sqlite3_stmt* stmt = nullptr;
    std::string out;
    int rc = sqlite3_prepare_v2(db, sql, -1, &stmt, nullptr);
    if (rc == SQLITE_OK) {
        rc = sqlite3_step(stmt);
        if (rc == SQLITE_ROW) {
            if (const auto* t = sqlite3_column_text(stmt, 0)) out = reinterpret_cast<const char*>(t);
            rc = SQLITE_OK;
        } else if (rc == SQLITE_DONE) {
            rc = SQLITE_OK;
        }
    }
    sqlite3_finalize(stmt);
    if (rcOut) *rcOut = rc;
    return out;
}

// Runs one statement of a fresh connection, stepping through any rows.
int runPragma(sqlite3* db, const char* sql) {
    sqlite3_stmt* stmt = nullptr;
    int rc = sqlite3_prepare_v2(db, sql, -1, &stmt, nullptr);
    if (rc != SQLITE_OK) return rc;
    while ((rc = sqlite3_step(stmt)) == SQLITE_ROW) {
    }
    sqlite3_finalize(stmt);
    return rc == SQLITE_DONE ? SQLITE_OK : rc;
}

// The schedule's index on a store made before it, without waiting: a store
// busy right now, or one without the table, stays as it is (its reads sort).
void addScheduleIndex(sqlite3* db, int busyTimeoutMs) {
    const char* has = "SELECT count(*) FROM sqlite_master WHERE type='index' AND name='idxApptsTaskStart'";
    if (pragmaText(db, has) != "0") return;
    sqlite3_busy_timeout(db, 0);
    runPragma(db, Connection::kScheduleIndex);
    sqlite3_busy_timeout(db, busyTimeoutMs);
}

}  // namespace

std::string storeProblem(const std::string& path, std::string_view what) {
    // TRANSLATORS: %1 the file's path; %2 what is wrong with it ("is read-only").
    return fill(tr("The Quorvel data file %1 %2"), {quotedPath(path), what});
}

std::string describeFault(const std::string& path, int code, const std::string& engineMessage) {
    static constexpr std::string_view kNoTable = "no such table: ";
    static constexpr std::string_view kNoColumn = "no such column: ";
    switch (code & 0xff) {
        case SQLITE_BUSY:
        case SQLITE_LOCKED:
            return storeProblem(path, fill(tr("is busy: another program has kept it locked for more than %1 seconds"),
                                           {std::to_string(kBusyTimeoutMs / 1000)}));
        case SQLITE_NOTADB:
            return storeProblem(path, tr(kNotAStore));
        case SQLITE_CORRUPT:
            return storeProblem(path, fill(tr("is damaged (%1)"), {engineMessage}));
        case SQLITE_READONLY:
            return storeProblem(path, tr("is read-only"));
        case SQLITE_FULL:
            return storeProblem(path, tr("can't grow: the disk is full"));
        case SQLITE_IOERR:
            if (diskFull(path)) return storeProblem(path, tr("can't grow: the disk is full"));
            break;
        case SQLITE_CANTOPEN:
            return storeProblem(path, fill(tr("can't be opened (%1)"), {engineMessage}));
        default:
            break;
    }
    if (engineMessage.starts_with(kNoTable))
        return storeProblem(path, fill(tr("is missing the table %1"), {engineMessage.substr(kNoTable.size())}));
    if (engineMessage.starts_with(kNoColumn))
        return storeProblem(path, fill(tr("is missing the column %1"), {engineMessage.substr(kNoColumn.size())}));
    return {};
}

std::string pathFromConnString(const std::string& connString) {
    static constexpr std::string_view kKey = "Data Source=";
    const size_t at = findNoCase(connString, kKey);
    if (at == std::string::npos) return {};
    std::string path = connString.substr(at + kKey.size());
    if (!path.empty() && path.back() == ';') path.pop_back();
    return path;
}

// ---------------------------------------------------------------------------

Connection::Connection(std::string path, sqlite3* db, bool readOnly, uint64_t dev, uint64_t ino)
    : path_(std::move(path)), db_(db), readOnly_(readOnly), dev_(dev), ino_(ino) {}

Connection::~Connection() {
    for (auto& [sql, entry] : cache_)
        if (entry->stmt) sqlite3_finalize(entry->stmt);
    cache_.clear();
    if (db_) sqlite3_close_v2(db_);
}

std::shared_ptr<Connection> Connection::forConnString(const std::string& connString) {
    if (connString.empty())
        storeFailure("the connection string is empty: no store file is named", "opening the store");
    const std::string path = pathFromConnString(connString);
    if (path.empty())
        storeFailure("the connection string names no store file (no \"Data Source=\")",
                     "opening the store with \"" + connString + "\"");
    return forPath(path);
}

std::shared_ptr<Connection> Connection::forPath(const std::string& path) {
    auto& reg = registry();
    const FileFacts facts = examine(path);
    const auto found = reg.find(path);
    if (!facts.exists) {
        if (found != reg.end()) reg.erase(found);
        throw Failure(err::StoreFailure,
                      storeProblem(path, facts.error == ENOENT
                                               ? tr("is missing")
                                               : fill(tr("can't be reached: %1"), {std::strerror(facts.error)})) +
                          ".",
                      "Store");
    }
    if (!facts.isFile) throw Failure(err::StoreFailure, storeProblem(path, tr("is not a file")) + ".", "Store");
    // An empty file is not a store, and must not silently become one.
    if (facts.size == 0) throw Failure(err::StoreFailure, storeProblem(path, tr(kNotAStore)) + ".", "Store");
    if (!facts.folderWritable)
        throw Failure(err::StoreFailure,
                      storeProblem(path, tr("is read-only: its folder can't be written")) + ".", "Store");
    if (found != reg.end()) {
        const Connection& c = *found->second;
        // The same file as before, with the same permission: reuse.
        if (c.dev_ == facts.dev && c.ino_ == facts.ino && c.readOnly_ == !facts.writable)
            return found->second;
        reg.erase(found);
    }
    auto conn = openNew(path, facts.dev, facts.ino, !facts.writable);
    reg.emplace(path, conn);
    return conn;
}

std::shared_ptr<Connection> Connection::openNew(const std::string& path, uint64_t dev, uint64_t ino,
                                                bool readOnly) {
    const std::string context = "opening the store file " + quotedPath(path);
    sqlite3* db = nullptr;
    // Never SQLITE_OPEN_CREATE: a missing store is a failure, not a new file.
    const int flags = (readOnly ? SQLITE_OPEN_READONLY : SQLITE_OPEN_READWRITE) | SQLITE_OPEN_NOMUTEX;
    int rc = sqlite3_open_v2(path.c_str(), &db, flags, nullptr);
    auto failOpen = [&](int code) {
        const std::string engine = db ? sqlite3_errmsg(db) : sqlite3_errstr(code);
        const std::string clear = describeFault(path, db ? sqlite3_extended_errcode(db) : code, engine);
        if (db) sqlite3_close_v2(db);
        failWith(clear, engine, context);
    };
    if (rc != SQLITE_OK) failOpen(rc);
    // Before any other statement: every lock met from here on is waited for.
    sqlite3_busy_timeout(db, kBusyTimeoutMs);
    sqlite3_extended_result_codes(db, 1);
    // Reads the header and the tables: a file that is no store fails here,
    // before anything is written.
    const std::string tables = pragmaText(db, "SELECT count(*) FROM sqlite_master WHERE type='table'", &rc);
    if (rc != SQLITE_OK) failOpen(rc);
    if (tables == "0") {
        sqlite3_close_v2(db);
        throw Failure(err::StoreFailure, storeProblem(path, kNotAStore) + ".", "Store");
    }
    const bool ro = readOnly || sqlite3_db_readonly(db, "main") == 1;
    // The journal mode belongs to the file: set once, when a store older than
    // WAL is first opened. A store that is busy right now stays as it is and
    // is upgraded at a later open; its own journal serves meanwhile.
    if (!ro && pragmaText(db, "PRAGMA journal_mode") != "wal") runPragma(db, "PRAGMA journal_mode=WAL");
    if (!ro) addScheduleIndex(db, kBusyTimeoutMs);
    // FULL: a commit is on the disk before the save is acknowledged.
    runPragma(db, "PRAGMA synchronous=FULL");
    rc = runPragma(db, "PRAGMA foreign_keys=OFF");
    if (rc != SQLITE_OK) failOpen(rc);
    return std::shared_ptr<Connection>(new Connection(path, db, ro, dev, ino));
}

void Connection::release(const std::string& path) {
    registry().erase(path);
}

void Connection::releaseAll() {
    registry().clear();
}

// ---------------------------------------------------------------------------

Connection::Statement::Statement(Statement&& o) noexcept : stmt_(o.stmt_), inUse_(o.inUse_) {
    o.stmt_ = nullptr;
    o.inUse_ = nullptr;
}

Connection::Statement& Connection::Statement::operator=(Statement&& o) noexcept {
    if (this != &o) {
        done();
        stmt_ = o.stmt_;
        inUse_ = o.inUse_;
        o.stmt_ = nullptr;
        o.inUse_ = nullptr;
    }
    return *this;
}

Connection::Statement::~Statement() {
    done();
}

void Connection::Statement::done() {
    if (!stmt_) return;
    if (inUse_) {
        sqlite3_reset(stmt_);
        sqlite3_clear_bindings(stmt_);
        *inUse_ = false;
    } else {
        sqlite3_finalize(stmt_);
    }
    stmt_ = nullptr;
    inUse_ = nullptr;
}

Connection::Statement Connection::tryPrepare(const std::string& sql) {
    Statement s;
    auto it = cache_.find(sql);
    if (it != cache_.end() && !it->second->inUse) {
        it->second->inUse = true;
        it->second->lastUse = ++tick_;
        s.stmt_ = it->second->stmt;
        s.inUse_ = &it->second->inUse;
        return s;
    }
    sqlite3_stmt* stmt = nullptr;
    if (sqlite3_prepare_v2(db_, sql.data(), static_cast<int>(sql.size()), &stmt, nullptr) != SQLITE_OK) {
        if (stmt) sqlite3_finalize(stmt);
        return s;
    }
    s.stmt_ = stmt;
    if (it == cache_.end() && stmt) {
        if (cache_.size() >= kMaxCachedStatements) evictIdle();
        auto entry = std::make_unique<Entry>();
        entry->stmt = stmt;
        entry->inUse = true;
        entry->lastUse = ++tick_;
        s.inUse_ = &entry->inUse;
        cache_.emplace(sql, std::move(entry));
    }
    return s;
}

Connection::Statement Connection::prepare(const std::string& sql, std::string_view context) {
    Statement s = tryPrepare(sql);
    if (!s) fail(context);
    return s;
}

void Connection::evictIdle() {
    // Drops the older half of the idle statements.
    std::vector<uint64_t> ticks;
    for (auto& [sql, e] : cache_)
        if (!e->inUse) ticks.push_back(e->lastUse);
    if (ticks.empty()) return;
    std::nth_element(ticks.begin(), ticks.begin() + ticks.size() / 2, ticks.end());
    const uint64_t cut = ticks[ticks.size() / 2];
    for (auto it = cache_.begin(); it != cache_.end();) {
        if (!it->second->inUse && it->second->lastUse <= cut) {
            sqlite3_finalize(it->second->stmt);
            it = cache_.erase(it);
        } else {
            ++it;
        }
    }
}

void Connection::exec(const char* sql, std::string_view context) {
    if (sqlite3_exec(db_, sql, nullptr, nullptr, nullptr) != SQLITE_OK) fail(context);
}

void Connection::fail(std::string_view context) const {
    const std::string engine = sqlite3_errmsg(db_);
    failWith(describeFault(path_, sqlite3_extended_errcode(db_), engine), engine, context);
}

std::string Connection::where(std::string_view what) const {
    return std::string(what) + " in the store file " + quotedPath(path_);
}

}  // namespace qv
