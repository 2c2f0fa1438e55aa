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

// The engine's plan of a text for these values, step by step.
std::string planSteps(sqlite3* db, const std::string& sql, const std::vector<Value>& params) {
    const std::string explain = "EXPLAIN QUERY PLAN " + sql;
    sqlite3_stmt* stmt = nullptr;
    std::string steps;
    if (sqlite3_prepare_v2(db, explain.c_str(), static_cast<int>(explain.size()), &stmt, nullptr) == SQLITE_OK) {
        bindAll(stmt, params);
        while (sqlite3_step(stmt) == SQLITE_ROW) {
            for (int c = 0; c < 3; ++c) steps += std::to_string(sqlite3_column_int(stmt, c)) + ' ';
            const auto* detail = sqlite3_column_text(stmt, 3);
            steps += detail ? reinterpret_cast<const char*>(detail) : "";
            steps += '\n';
        }
    }
    sqlite3_finalize(stmt);
    return steps;
}

// Whether the text, as the store stands now, still has the columns the plan
// was made with (a kept statement keeps its old shape until it is next run).
bool sameShape(sqlite3* db, const QueryPlan& plan) {
    sqlite3_stmt* stmt = nullptr;
    const std::string& sql = plan.selectSql;
    bool same = sqlite3_prepare_v2(db, sql.c_str(), static_cast<int>(sql.size()), &stmt, nullptr) == SQLITE_OK &&
                stmt && sqlite3_column_count(stmt) == static_cast<int>(plan.cols.size()) + 1;
    for (size_t c = 0; same && c < plan.cols.size(); ++c) {
        const char* name = sqlite3_column_name(stmt, static_cast<int>(c));
        same = name && plan.cols[c].name == name;
    }
    sqlite3_finalize(stmt);
    return same;
}

// Only plain columns of distinct names can be picked from the whole text's
// rows by name.
bool pickable(const QueryPlan& plan, const std::vector<int>& wanted) {
    for (const int c : wanted)
        if (plan.cols[static_cast<size_t>(c)].origin.empty()) return false;
    for (size_t a = 0; a < plan.cols.size(); ++a) {
        const std::string& name = plan.cols[a].name;
        if (name.empty() || FieldCodec::equalsNoCase(name, jet::kRowidColumn)) return false;
        for (size_t b = a + 1; b < plan.cols.size(); ++b)
            if (FieldCodec::equalsNoCase(name, plan.cols[b].name)) return false;
    }
    return true;
}

}  // namespace

// The whole text becomes a subquery of one that picks the wanted columns:
// the engine folds it into a single reader that neither fetches nor sorts
// the others. Taken only where its plan is the whole text's, step for step
// (the same index, the same sort of the same scan): the rows then come in
// the same order, ties included. The schema's version is asked on every
// read, so an index or a column made or dropped since is seen.
const std::string& Connection::narrowed(const QueryPlan& plan, const std::vector<int>& wanted) {
    static const std::string none;
    std::string key = plan.selectSql;
    key += '\0';
    for (const int c : wanted) key += std::to_string(c) + ',';
    const int64_t schema = [this] {
        Statement st = tryPrepare("PRAGMA schema_version");
        return st && sqlite3_step(st.get()) == SQLITE_ROW ? sqlite3_column_int64(st.get(), 0) : -1;
    }();
    if (schema < 0) return none;
    if (const auto found = narrowed_.find(key); found != narrowed_.end() && found->second.schema == schema)
        return found->second.sql;
    if (narrowed_.size() >= kMaxTextPlans) narrowed_.clear();
    // A read of the schema's table brings the connection's idea of the
    // tables up to date before any text is judged.
    if (Statement st = tryPrepare("SELECT 1 FROM sqlite_master LIMIT 1")) sqlite3_step(st.get());
    Narrowed n;
    n.schema = schema;
    if (pickable(plan, wanted) && sameShape(db_, plan)) {
        std::string sql = "SELECT ";
        for (const int c : wanted) sql += jet::quoteIdentifier(plan.cols[static_cast<size_t>(c)].name) + ", ";
        sql += std::string(jet::kRowidColumn) + " FROM (" + plan.selectSql + ")";
        const std::string steps = planSteps(db_, sql, plan.params);
        if (!steps.empty() && steps == planSteps(db_, plan.selectSql, plan.params)) n.sql = std::move(sql);
    }
    return narrowed_.insert_or_assign(std::move(key), std::move(n)).first->second.sql;
}

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
    const int n = static_cast<int>(plan.cols.size());
    // The columns to read, in order: a set of many columns walked for a few
    // of them copies only those, and where it can, has only those read.
    std::vector<int> wanted;
    wanted.reserve(plan.cols.size());
    for (int c = 0; c < n; ++c)
        if (!only || (*only)[static_cast<size_t>(c)]) wanted.push_back(c);
    Statement st;
    if (only && plan.withIdentity && static_cast<int>(wanted.size()) < n) {
        const std::string& picked = narrowed(plan, wanted);
        if (!picked.empty()) st = tryPrepare(picked);
    }
    // In the narrow statement the wanted columns stand first, in order.
    const bool narrow = static_cast<bool>(st);
    if (!st) st = tryPrepare(plan.selectSql);
    if (!st) fail(doing.text());
    sqlite3_stmt* stmt = st.get();
    bindAll(stmt, plan.params);
    const int identity = narrow ? static_cast<int>(wanted.size()) : n;
    int rc;
    bool first = true;
    while ((rc = sqlite3_step(stmt)) == SQLITE_ROW) {
        // A kept statement is made again when another program changed the
        // tables: columns read by the old shape would be misplaced.
        if (first && sqlite3_column_count(stmt) != identity + (plan.withIdentity ? 1 : 0))
            throw Failure(err::StoreFailure,
                          storeProblem(path_, tr("had its tables changed by another program: open it again")) + ".",
                          "Store");
        first = false;
        Cell* cells = newRow(plan.withIdentity ? sqlite3_column_int64(stmt, identity) : 0);
        if (!cells) continue;
        for (size_t k = 0; k < wanted.size(); ++k)
            readCell(stmt, narrow ? static_cast<int>(k) : wanted[k], cells[wanted[k]], store);
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
