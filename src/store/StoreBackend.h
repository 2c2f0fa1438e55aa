#pragma once
// What the Recordset asks of a store engine: plan a query text (its columns,
// its base table and the row identity), read its rows, count them, write
// rows back by identity, and run the transaction texts of a save. The
// SQLite file (Connection) and the PostgreSQL server (PgConnection) answer
// it; ConnString means something only here.

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "store/FieldCodec.h"
#include "store/RowStore.h"
#include "values/types/Value.h"

namespace qv {

struct ColumnInfo {
    std::string name;
    FieldType type = FieldType::Expr;
    std::string origin;  // the base table's column, empty for an expression
};

// The columns of a query text that its sets have used, learned on a
// connection: once a set of the text has gone, a load reads only these, and
// a set reads another column of its rows when it is first asked for.
struct ColumnUse {
    bool learned = false;
    std::vector<uint8_t> used;
};

// An opened query: what a load runs and what the set can write.
struct QueryPlan {
    std::string selectSql;  // with the row identity as its last column when the set can write back
    std::string countSql;   // counts without reading; empty when the text is no SELECT
    bool isSelect = true;
    bool withIdentity = false;
    std::string table;  // the one base table, empty when the set can't write back
    std::vector<ColumnInfo> cols;
    std::vector<int> fields;  // the engine's field of each column, where it isn't the same position
    std::string probeSql;     // counts and reads the first rows in one go, where the engine offers it
    std::vector<Value> params;  // the values of the text's ? placeholders, in order
    // The engine sends the rows of a text of no order as they lie: the
    // reader puts them in the order they were added (their identity).
    bool identityOrder = false;
    // Where the engine can read some columns of rows it has read before
    // (by their identity); null where a load reads every column.
    std::shared_ptr<ColumnUse> use;
};

// True for a connection URI of a PostgreSQL server (postgresql:// or
// postgres://); any other location is a store file.
bool isServerUri(std::string_view location);

class StoreBackend;

// What a set was doing when the store failed ("reading "<query>" in the
// store ..."), put into words only when a failure tells it.
class Doing {
public:
    Doing(const StoreBackend& store, std::string_view what, std::string_view source)
        : store_(&store), what_(what), source_(source) {}
    [[nodiscard]] std::string text() const;

private:
    const StoreBackend* store_;
    std::string_view what_;
    std::string_view source_;
};

class StoreBackend {
public:
    virtual ~StoreBackend() = default;

    // The engine for a ConnString: a postgresql:// URI names a server,
    // anything else a store file.
    static std::shared_ptr<StoreBackend> forConnString(const std::string& connString);

    // Plans a query text in the old (Jet) dialect. Throws Failure.
    virtual QueryPlan plan(const std::string& jetSource) = 0;
    // Reads every row of the plan: newRow(identity) gives the row's cells,
    // or null to pass the row by. only, where given, flags the columns to
    // read (an engine whose plans carry no use reads every column).
    virtual void read(const QueryPlan& plan, const std::vector<uint8_t>* only, RowStore& store,
                      const std::function<Cell*(int64_t)>& newRow, const Doing& doing) = 0;
    // The number of rows, or -1 when it can't be counted without reading.
    virtual int64_t count(const QueryPlan& plan, const Doing& doing) = 0;
    // As count; an engine for which a question costs a round trip may read
    // a small set whole on the way (then read is set and the rows are in).
    virtual int64_t countOrRead(const QueryPlan& plan, RowStore& /*store*/,
                                const std::function<Cell*(int64_t)>& /*newRow*/, const Doing& doing,
                                bool& read) {
        read = false;
        return count(plan, doing);
    }

    // Row writes by identity; names are base-table columns.
    virtual void removeRow(const std::string& table, int64_t id, std::string_view context) = 0;
    // The new row's identity.
    virtual int64_t insertRow(const std::string& table, const std::vector<std::string>& names,
                              const std::vector<Value>& values, std::string_view context) = 0;
    // The number of rows changed: 0 when the row is gone or a checked
    // column no longer holds its expected value (null matches null).
    virtual int64_t updateRow(const std::string& table, const std::vector<std::string>& names,
                              const std::vector<Value>& values, const std::vector<std::string>& checkNames,
                              const std::vector<Value>& checkValues, int64_t id,
                              std::string_view context) = 0;
    // Reads one row by identity into cells, one per name (an empty name
    // stays null); false when the row is gone.
    virtual bool readRow(const std::string& table, const std::vector<std::string>& names, int64_t id,
                         RowStore& store, Cell* cells, std::string_view context) = 0;

    // Transactions: the outermost save begins the engine's transaction
    // (taking the write lock where the engine has one); inner ones are
    // savepoints.
    [[nodiscard]] virtual bool inTransaction() const = 0;
    [[nodiscard]] virtual const char* beginText() const = 0;
    virtual void exec(const std::string& sql, std::string_view context) = 0;
    // As exec, ignoring failure (undoing after a failure).
    virtual void execQuiet(const std::string& sql) noexcept = 0;

    // "... in the store <name>": a context naming the store.
    [[nodiscard]] virtual std::string where(std::string_view what) const = 0;
    // A fresh number for a savepoint name on this connection.
    [[nodiscard]] uint64_t nextSavepoint() { return ++savepoints_; }

private:
    uint64_t savepoints_ = 0;
};

}  // namespace qv
