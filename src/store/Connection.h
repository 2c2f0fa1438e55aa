#pragma once
// One SQLite connection per store file, shared by every Recordset that opens
// the same ConnString and kept open for the life of the process (or until
// released). The busy timeout of 5 s comes first, so every lock is waited
// for; WAL journal (switched once, when an older store is first opened),
// synchronous=FULL, foreign keys off. A missing or empty file is never
// created or turned into a store; a file that is no store, is busy, or lacks
// a table gives Failure(err::StoreFailure) with one sentence naming the file
// ("The Quorvel data file "..." is not a Quorvel data file"). A file whose
// write permission bits are all off is opened read-only (as the platform's
// read-only file attribute), so writes to it fail as "... is read-only".

#include <sqlite3.h>

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>

#include "store/JetDialect.h"
#include "store/StoreBackend.h"

namespace qv {

// The path inside a ConnString of the form
// "Provider=Microsoft.Jet.OLEDB.4.0;Data Source=" + path + ";": everything
// after "Data Source=" up to the final ";". The path stands as it was put in
// (blanks and ";" included). Empty when no data source is named.
std::string pathFromConnString(const std::string& connString);

// "The Quorvel data file "<path>" <what>".
std::string storeProblem(const std::string& path, std::string_view what);
// The one sentence for an engine fault on the store at path: busy, not a
// store, read-only, a table or column missing; empty for any other fault.
std::string describeFault(const std::string& path, int code, const std::string& engineMessage);

class Connection : public StoreBackend {
public:
    // The connection for the store that a ConnString names (cached per path).
    static std::shared_ptr<Connection> forConnString(const std::string& connString);
    static std::shared_ptr<Connection> forPath(const std::string& path);
    // Forgets the cached connection of a path; it closes when its last user
    // lets go. For tests and for a host that replaces the file.
    static void release(const std::string& path);
    static void releaseAll();
    // A task's appointments newest first, read in the index's order rather
    // than sorted: its last key, the rowid, keeps rows of the same start in
    // the order a sort of the task's rows left them. A store made before it
    // gets it when first opened for writing.
    static constexpr const char* kScheduleIndex =
        "CREATE INDEX idxApptsTaskStart ON TASKAPPTS (taTaskGUIDID, taStartTime DESC)";

    ~Connection() override;
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    [[nodiscard]] const std::string& path() const { return path_; }
    [[nodiscard]] sqlite3* handle() const { return db_; }
    [[nodiscard]] bool readOnly() const { return readOnly_; }

    // A prepared statement on loan from the connection's cache; reset and
    // unbound when the loan ends.
    class Statement {
    public:
        Statement() = default;
        Statement(Statement&& o) noexcept;
        Statement& operator=(Statement&& o) noexcept;
        ~Statement();
        [[nodiscard]] sqlite3_stmt* get() const { return stmt_; }
        explicit operator bool() const { return stmt_ != nullptr; }

    private:
        friend class Connection;
        void done();
        sqlite3_stmt* stmt_ = nullptr;
        bool* inUse_ = nullptr;  // the cache entry's flag, or null for an uncached statement
    };

    // Prepares (or takes from the cache) the statement of an SQLite text.
    // Failure(err::StoreFailure, "<sqlite message> (<context>)") on error.
    Statement prepare(const std::string& sql, std::string_view context);
    // As prepare, but gives an empty statement instead of failing.
    Statement tryPrepare(const std::string& sql);
    // Runs a text that returns no rows.
    void exec(const char* sql, std::string_view context);

    // The store engine's side of a Recordset (ConnectionRows.cpp).
    QueryPlan plan(const std::string& jetSource) override;
    void read(const QueryPlan& plan, const std::vector<uint8_t>* only, RowStore& store,
              const std::function<Cell*(int64_t)>& newRow,
              const Doing& doing) override;
    int64_t count(const QueryPlan& plan, const Doing& doing) override;
    void removeRow(const std::string& table, int64_t id, std::string_view context) override;
    int64_t insertRow(const std::string& table, const std::vector<std::string>& names,
                      const std::vector<Value>& values, std::string_view context) override;
    int64_t updateRow(const std::string& table, const std::vector<std::string>& names,
                      const std::vector<Value>& values, const std::vector<std::string>& checkNames,
                      const std::vector<Value>& checkValues, int64_t id, std::string_view context) override;
    bool readRow(const std::string& table, const std::vector<std::string>& names, int64_t id, RowStore& store,
                 Cell* cells, std::string_view context) override;
    [[nodiscard]] bool inTransaction() const override;
    // IMMEDIATE: the write lock is waited for here, before anything is written.
    [[nodiscard]] const char* beginText() const override { return "BEGIN IMMEDIATE"; }
    void exec(const std::string& sql, std::string_view context) override { exec(sql.c_str(), context); }
    void execQuiet(const std::string& sql) noexcept override;

    // Throws the failure of the connection's last error.
    [[noreturn]] void fail(std::string_view context) const;
    // "... in the store file "<path>"": a context naming the file.
    [[nodiscard]] std::string where(std::string_view what) const override;

private:
    Connection(std::string path, sqlite3* db, bool readOnly, uint64_t dev, uint64_t ino);
    static std::shared_ptr<Connection> openNew(const std::string& path, uint64_t dev, uint64_t ino,
                                               bool readOnly);

    // A query text's translation and shape, which depend on the text alone.
    struct TextPlan {
        std::string sql;
        jet::SelectShape shape;
        std::string rowidSql;
        std::string countSql;
        std::shared_ptr<ColumnUse> use = std::make_shared<ColumnUse>();
    };
    static constexpr size_t kMaxTextPlans = 512;
    const TextPlan& textPlan(const std::string& jetSource);
    // The text that reads only the wanted columns of a plan (and its row
    // identity), where the engine reads its rows the same way as the whole
    // text's; else empty. Decided once per text, columns and schema.
    const std::string& narrowed(const QueryPlan& plan, const std::vector<int>& wanted);
    struct Narrowed {
        std::string sql;
        int64_t schema = -1;
    };
    // The columns of a prepared text, and its one base table.
    static void describe(sqlite3_stmt* stmt, QueryPlan& p);

    struct Entry {
        sqlite3_stmt* stmt = nullptr;
        bool inUse = false;
        uint64_t lastUse = 0;
    };
    void evictIdle();

    std::string path_;
    sqlite3* db_ = nullptr;
    bool readOnly_ = false;
    uint64_t dev_ = 0;
    uint64_t ino_ = 0;
    uint64_t tick_ = 0;
    std::unordered_map<std::string, std::unique_ptr<Entry>> cache_;
    std::unordered_map<std::string, TextPlan> texts_;
    std::unordered_map<std::string, Narrowed> narrowed_;
};

}  // namespace qv
