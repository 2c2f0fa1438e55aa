// The SQLite store's side of a Recordset: plans, reads and row writes.
#include <sqlite3.h>

#include <algorithm>

#include "store/Connection.h"
#include "store/JetDialect.h"
#include "toolkit/Failure.h"
#include "toolkit/Translate.h"

namespace qv {

namespace {

void step(Connection& conn, sqlite3_stmt* stmt, std::string_view ctx) {
    if (sqlite3_step(stmt) != SQLITE_DONE) conn.fail(ctx);
}

void bindAll(sqlite3_stmt* stmt, const std::vector<Value>& params) {
    for (size_t i = 0; i < params.size(); ++i) FieldCodec::bindValue(stmt, static_cast<int>(i + 1), params[i]);
}

void readCell(sqlite3_stmt* stmt, int c, Cell& cell, RowStore& store) {
    sqlite3_value* v = sqlite3_column_value(stmt, c);
    cell.kind = static_cast<uint8_t>(sqlite3_value_type(v));
    switch (cell.kind) {
        case SQLITE_INTEGER:
            cell.i = sqlite3_value_int64(v);
            break;
        case SQLITE_FLOAT:
            cell.d = sqlite3_value_double(v);
            break;
        case SQLITE_TEXT: {
            const auto* p = sqlite3_value_text(v);
            cell.len = static_cast<uint32_t>(sqlite3_value_bytes(v));
            cell.text = store.copy(p, cell.len);
            break;
        }
        case SQLITE_BLOB: {
            const void* p = sqlite3_value_blob(v);
            cell.len = static_cast<uint32_t>(sqlite3_value_bytes(v));
            cell.text = store.copy(p, cell.len);
            break;
        }
        default:
            break;
    }
}

}  // namespace

const Connection::TextPlan& Connection::textPlan(const std::string& jetSource) {
    if (const auto found = texts_.find(jetSource); found != texts_.end()) return found->second;
    if (texts_.size() >= kMaxTextPlans) texts_.clear();
    TextPlan t;
    t.sql = jet::translate(jetSource);
    t.shape = jet::analyse(t.sql);
    if (t.shape.isSelect) {
        t.rowidSql = jet::withRowid(t.sql, t.shape);
        t.countSql = jet::countQuery(t.sql, t.shape);
    }
    return texts_.emplace(jetSource, std::move(t)).first->second;
}

QueryPlan Connection::plan(const std::string& jetSource) {
    const TextPlan& text = textPlan(jetSource);
    const jet::SelectShape& shape = text.shape;

    QueryPlan p;
    Statement st;
    if (!text.rowidSql.empty()) {
        st = tryPrepare(text.rowidSql);
        if (st) {
            p.selectSql = text.rowidSql;
            p.withIdentity = true;
        }
    }
    if (!st) {
        p.selectSql = shape.isSelect ? text.sql.substr(0, shape.end) : text.sql;
        st = tryPrepare(p.selectSql);
        if (!st) fail(where("opening the query \"" + jetSource + "\""));
    }
    describe(st.get(), p);
    p.isSelect = shape.isSelect;
    p.countSql = text.countSql;
    if (p.withIdentity) p.use = text.use;
    return p;
}

void Connection::describe(sqlite3_stmt* stmt, QueryPlan& p) {
    const int total = sqlite3_column_count(stmt);
    const int n = p.withIdentity ? total - 1 : total;
    p.cols.reserve(static_cast<size_t>(std::max(n, 0)));
    bool tableClash = false;
    for (int c = 0; c < n; ++c) {
        ColumnInfo col;
        const char* name = sqlite3_column_name(stmt, c);
        col.name = name ? name : "";
        col.type = FieldCodec::typeFromDecl(sqlite3_column_decltype(stmt, c));
        const char* t = sqlite3_column_table_name(stmt, c);
        const char* o = sqlite3_column_origin_name(stmt, c);
        if (p.withIdentity && t && o) {
            if (p.table.empty())
                p.table = t;
            else if (!FieldCodec::equalsNoCase(p.table, t))
                tableClash = true;
            col.origin = o;
        }
        p.cols.push_back(std::move(col));
    }
    if (tableClash || !p.withIdentity) p.table.clear();
}

void Connection::read(const QueryPlan& plan, const std::vector<uint8_t>* only, RowStore& store,
                      const std::function<Cell*(int64_t)>& newRow, const Doing& doing) {
    Statement st = tryPrepare(plan.selectSql);
    if (!st) fail(doing.text());
    sqlite3_stmt* stmt = st.get();
    bindAll(stmt, plan.params);
    const int n = static_cast<int>(plan.cols.size());
    // The columns to read, in order: a set of many columns walked for a few
    // of them copies only those.
    std::vector<int> wanted;
    wanted.reserve(plan.cols.size());
    for (int c = 0; c < n; ++c)
        if (!only || (*only)[static_cast<size_t>(c)]) wanted.push_back(c);
    int rc;
    bool first = true;
    while ((rc = sqlite3_step(stmt)) == SQLITE_ROW) {
        // A kept statement is made again when another program changed the
        // tables: columns read by the old shape would be misplaced.
        if (first && sqlite3_column_count(stmt) != n + (plan.withIdentity ? 1 : 0))
            throw Failure(err::StoreFailure,
                          storeProblem(path_, tr("had its tables changed by another program: open it again")) + ".",
                          "Store");
        first = false;
        Cell* cells = newRow(plan.withIdentity ? sqlite3_column_int64(stmt, n) : 0);
        if (!cells) continue;
        for (const int c : wanted) readCell(stmt, c, cells[c], store);
    }
    if (rc != SQLITE_DONE) fail(doing.text());
}

int64_t Connection::count(const QueryPlan& plan, const Doing& doing) {
    if (plan.countSql.empty()) return -1;
    Statement st = tryPrepare(plan.countSql);
    if (!st) return -1;
    bindAll(st.get(), plan.params);
    if (sqlite3_step(st.get()) != SQLITE_ROW) fail(doing.text());
    return sqlite3_column_int64(st.get(), 0);
}

void Connection::removeRow(const std::string& table, int64_t id, std::string_view context) {
    auto st = prepare("DELETE FROM " + jet::quoteIdentifier(table) + " WHERE rowid=?", context);
    sqlite3_bind_int64(st.get(), 1, id);
    step(*this, st.get(), context);
}

int64_t Connection::insertRow(const std::string& table, const std::vector<std::string>& names,
                              const std::vector<Value>& values, std::string_view context) {
    std::string cols;
    std::string marks;
    for (const auto& name : names) {
        if (!cols.empty()) {
            cols += ", ";
            marks += ", ";
        }
        cols += jet::quoteIdentifier(name);
        marks += "?";
    }
    const std::string qTable = jet::quoteIdentifier(table);
    const std::string sql = names.empty()
                                ? "INSERT INTO " + qTable + " DEFAULT VALUES"
                                : "INSERT INTO " + qTable + " (" + cols + ") VALUES (" + marks + ")";
    auto st = prepare(sql, context);
    for (size_t i = 0; i < values.size(); ++i)
        FieldCodec::bindValue(st.get(), static_cast<int>(i + 1), values[i]);
    step(*this, st.get(), context);
    return sqlite3_last_insert_rowid(handle());
}

int64_t Connection::updateRow(const std::string& table, const std::vector<std::string>& names,
                              const std::vector<Value>& values, const std::vector<std::string>& checkNames,
                              const std::vector<Value>& checkValues, int64_t id, std::string_view context) {
    std::string sets;
    for (const auto& name : names) {
        if (!sets.empty()) sets += ", ";
        sets += jet::quoteIdentifier(name) + "=?";
    }
    std::string checks;
    for (const auto& name : checkNames) checks += " AND " + jet::quoteIdentifier(name) + " IS ?";
    auto st = prepare("UPDATE " + jet::quoteIdentifier(table) + " SET " + sets + " WHERE rowid=?" + checks,
                      context);
    int b = 1;
    for (const auto& v : values) FieldCodec::bindValue(st.get(), b++, v);
    sqlite3_bind_int64(st.get(), b++, id);
    for (const auto& v : checkValues) FieldCodec::bindValue(st.get(), b++, v);
    step(*this, st.get(), context);
    return sqlite3_changes(handle());
}

bool Connection::readRow(const std::string& table, const std::vector<std::string>& names, int64_t id,
                         RowStore& store, Cell* cells, std::string_view context) {
    std::string cols;
    for (const auto& name : names)
        cols += (cols.empty() ? "" : ", ") + (name.empty() ? "NULL" : jet::quoteIdentifier(name));
    auto st = prepare("SELECT " + cols + " FROM " + jet::quoteIdentifier(table) + " WHERE rowid=?", context);
    sqlite3_bind_int64(st.get(), 1, id);
    const int rc = sqlite3_step(st.get());
    if (rc == SQLITE_DONE) return false;
    if (rc != SQLITE_ROW) fail(context);
    for (size_t c = 0; c < names.size(); ++c) readCell(st.get(), static_cast<int>(c), cells[c], store);
    return true;
}

bool Connection::inTransaction() const {
    return sqlite3_get_autocommit(handle()) == 0;
}

void Connection::execQuiet(const std::string& sql) noexcept {
    sqlite3_exec(handle(), sql.c_str(), nullptr, nullptr, nullptr);
}

}  // namespace qv
