#pragma once
// One connection per PostgreSQL server URI, shared by every Recordset that
// opens it and kept for the life of the process. Query texts of the old
// dialect are rewritten as on the file store, prepared once and described
// without running; rows come back as text and are written back by the
// hidden identity column qv_rowid of every table, with bound parameters.
// A lock is waited for 5 s, as on the file store. A server that can't be
// reached gives one Failure(err::StoreFailure) naming the server and the
// reason; the connection is dropped then, so a later open tries again.

#include <libpq-fe.h>

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>

#include "store/StoreBackend.h"

namespace qv {

// "<database> on <host or socket folder>[:port]", without a password.
std::string serverName(const std::string& uri);

class PgConnection : public StoreBackend {
public:
    static std::shared_ptr<PgConnection> forUri(const std::string& uri);
    static void releaseAll();
    ~PgConnection() override;
    PgConnection(const PgConnection&) = delete;
    PgConnection& operator=(const PgConnection&) = delete;

    QueryPlan plan(const std::string& jetSource) override;
    void read(const QueryPlan& plan, const std::vector<uint8_t>* only, RowStore& store,
              const std::function<Cell*(int64_t)>& newRow,
              const Doing& doing) override;
    int64_t count(const QueryPlan& plan, const Doing& doing) override;
    // The first rows and the count in one round trip: a set of up to
    // kProbeRows rows (a list's size) comes whole; a larger one is counted only.
    int64_t countOrRead(const QueryPlan& plan, RowStore& store, const std::function<Cell*(int64_t)>& newRow,
                        const Doing& doing, bool& read) override;
    void removeRow(const std::string& table, int64_t id, std::string_view context) override;
    int64_t insertRow(const std::string& table, const std::vector<std::string>& names,
                      const std::vector<Value>& values, std::string_view context) override;
    int64_t updateRow(const std::string& table, const std::vector<std::string>& names,
                      const std::vector<Value>& values, const std::vector<std::string>& checkNames,
                      const std::vector<Value>& checkValues, int64_t id, std::string_view context) override;
    bool readRow(const std::string& table, const std::vector<std::string>& names, int64_t id, RowStore& store,
                 Cell* cells, std::string_view context) override;
    [[nodiscard]] bool inTransaction() const override;
    [[nodiscard]] const char* beginText() const override { return "BEGIN"; }
    void exec(const std::string& sql, std::string_view context) override;
    void execQuiet(const std::string& sql) noexcept override;
    [[nodiscard]] std::string where(std::string_view what) const override;

    [[nodiscard]] PGconn* handle() const { return conn_; }

    // Small reads and writes past the Recordset (the host's lists): a text
    // of the server's dialect with bound parameters $1, $2, ..., prepared
    // once. Every cell comes as text, nothing for null, a date as the file
    // store keeps it ("2024-01-15T17:30:00.000"), yes/no as 1 or 0.
    using TextRow = std::vector<std::optional<std::string>>;
    std::vector<TextRow> textRows(const std::string& sql, const std::vector<std::string>& params,
                                  std::string_view context);

private:
    struct ResultFree {
        void operator()(PGresult* r) const { PQclear(r); }
    };
    using Result = std::unique_ptr<PGresult, ResultFree>;
    struct TableColumns {
        std::string table;
        struct Column {
            std::string name;
            std::string decl;      // the declared type
            std::string spelling;  // the name as the schema spells it (its comment)
        };
        std::map<int, Column> byNumber;  // by attnum
    };

    PgConnection(std::string uri, PGconn* conn);
    // The name of the prepared statement of a text, prepared on first use.
    const std::string& prepared(const std::string& sql, std::string_view context);
    Result run(const std::string& sql, const std::vector<Value>& params, std::string_view context);
    // A transaction's BEGIN waits for its first statement and goes with it.
    [[nodiscard]] std::string withPendingBegin(const std::string& sql);
    Result runAfterBegin(const std::string& name, int count, const char* const* values);
    QueryPlan describe(const std::string& sql, bool withIdentity, std::string_view context);
    const TableColumns& tableColumns(Oid table, std::string_view context);
    [[noreturn]] void fail(const PGresult* result, std::string_view context);
    // A count or key the server sent as text; a store failure when it is none.
    int64_t numberFrom(const char* text, std::string_view context) const;
    [[nodiscard]] bool connectionLost(const std::string& code, const std::string& engine) const;
    void fill(const QueryPlan& plan, const std::vector<uint8_t>* only, const PGresult* res, int idField,
              RowStore& store, const std::function<Cell*(int64_t)>& newRow, std::string_view context) const;

    std::string uri_;
    std::string name_;
    PGconn* conn_ = nullptr;
    bool beginPending_ = false;
    std::unordered_map<std::string, std::string> statements_;
    // Names are never reused: statements forgotten here stay on the server.
    int64_t statementsMade_ = 0;
    std::unordered_map<std::string, QueryPlan> plans_;
    std::map<Oid, TableColumns> tables_;
};

}  // namespace qv
