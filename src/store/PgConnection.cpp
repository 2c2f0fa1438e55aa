#include "store/PgConnection.h"

#include <algorithm>
#include <charconv>
#include <cstring>

#include "store/JetDialect.h"
#include "toolkit/Failure.h"
#include "toolkit/MessageText.h"
#include "toolkit/TextFill.h"
#include "toolkit/Translate.h"
#include "values/types/DateSerial.h"
#include "values/types/Digits.h"

namespace qv {

namespace {

// Field types as the server numbers them.
constexpr Oid kBoolOid = 16;
constexpr Oid kInt8Oid = 20;
constexpr Oid kInt2Oid = 21;
constexpr Oid kInt4Oid = 23;
constexpr Oid kTextOid = 25;
constexpr Oid kFloat4Oid = 700;
constexpr Oid kFloat8Oid = 701;
constexpr Oid kVarcharOid = 1043;
constexpr Oid kDateOid = 1082;
constexpr Oid kTimestampOid = 1114;
constexpr Oid kTimestampTzOid = 1184;
constexpr Oid kNumericOid = 1700;

// The most rows that RecordCount reads with their count.
constexpr int kProbeRows = 1000;

std::map<std::string, std::shared_ptr<PgConnection>>& registry() {
    static std::map<std::string, std::shared_ptr<PgConnection>> connections;
    return connections;
}

std::string firstLine(const char* text) {
    std::string s = text ? text : "";
    if (s.starts_with("ERROR:  ")) s.erase(0, 8);
    if (const auto nl = s.find('\n'); nl != std::string::npos) s.erase(nl);
    while (!s.empty() && (s.back() == ' ' || s.back() == '.' || s.back() == '\r')) s.pop_back();
    return s;
}

// What a field of an expression holds, from the server's type.
FieldType typeOfOid(Oid oid) {
    switch (oid) {
        case kBoolOid:
            return FieldType::Bool;
        case kInt2Oid:
            return FieldType::Int16;
        case kFloat4Oid:
        case kFloat8Oid:
        case kNumericOid:
            return FieldType::Double;
        case kDateOid:
        case kTimestampOid:
        case kTimestampTzOid:
            return FieldType::Date;
        case kTextOid:
        case kVarcharOid:
            return FieldType::Text;
        default:
            return FieldType::Expr;
    }
}

void readCell(const PGresult* res, int row, int field, Cell& cell, RowStore& store) {
    if (PQgetisnull(res, row, field)) {
        cell.kind = kCellNull;
        return;
    }
    const char* text = PQgetvalue(res, row, field);
    const int len = PQgetlength(res, row, field);
    switch (PQftype(res, field)) {
        case kBoolOid:
            cell.kind = kCellInteger;
            cell.i = text[0] == 't' ? 1 : 0;
            return;
        case kInt2Oid:
        case kInt4Oid:
        case kInt8Oid: {
            int64_t i = 0;
            if (std::from_chars(text, text + len, i).ec == std::errc()) {
                cell.kind = kCellInteger;
                cell.i = i;
                return;
            }
            break;
        }
        case kFloat4Oid:
        case kFloat8Oid:
        case kNumericOid: {
            double d = 0;
            if (std::from_chars(text, text + len, d).ec == std::errc()) {
                cell.kind = kCellFloat;
                cell.d = d;
                return;
            }
            break;
        }
        default:
            break;
    }
    cell.kind = kCellText;
    cell.len = static_cast<uint32_t>(len);
    cell.text = store.copy(text, static_cast<size_t>(len));
}

// A value as the text of a bound parameter; nothing for null.
bool paramText(const Value& v, std::string& out) {
    switch (v.kind()) {
        case Value::Kind::Null:
            return false;
        case Value::Kind::Bool:
            out = v.toBool() ? "1" : "0";
            return true;
        case Value::Kind::Int16:
        case Value::Kind::Int32:
            out = std::to_string(v.toInt32());
            return true;
        case Value::Kind::Double: {
            char buf[32];
            const auto r = std::to_chars(buf, buf + sizeof buf, v.toDouble());
            out.assign(buf, r.ptr);
            return true;
        }
        case Value::Kind::Date:
            out = dateserial::toIso(v.toDate().serial);
            return true;
        case Value::Kind::Text:
            out = v.toText();
            return true;
    }
    return false;
}

std::string placeholders(size_t from, size_t n) {
    std::string out;
    for (size_t i = 0; i < n; ++i) {
        if (i) out += ", ";
        out += "$" + std::to_string(from + i);
    }
    return out;
}

}  // namespace

std::string serverName(const std::string& uri) {
    char* error = nullptr;
    PQconninfoOption* options = PQconninfoParse(uri.c_str(), &error);
    if (error) PQfreemem(error);
    if (!options) return uri;
    std::string host, port, db;
    for (PQconninfoOption* o = options; o->keyword; ++o) {
        if (!o->val) continue;
        if (std::strcmp(o->keyword, "host") == 0) host = o->val;
        if (std::strcmp(o->keyword, "port") == 0) port = o->val;
        if (std::strcmp(o->keyword, "dbname") == 0) db = o->val;
    }
    PQconninfoFree(options);
    // TRANSLATORS: %1 a database, %2 a server ("the default database on the local server").
    std::string name = qv::fill(tr("%1 on %2"), {db.empty() ? tr("the default database") : db,
                                              host.empty() ? tr("the local server") : host});
    if (!port.empty()) name += ":" + port;
    return name;
}

PgConnection::PgConnection(std::string uri, PGconn* conn)
    : uri_(std::move(uri)), name_(serverName(uri_)), conn_(conn) {}

PgConnection::~PgConnection() {
    if (conn_) PQfinish(conn_);
}

std::shared_ptr<PgConnection> PgConnection::forUri(const std::string& uri) {
    auto& reg = registry();
    if (const auto found = reg.find(uri); found != reg.end()) {
        if (PQstatus(found->second->conn_) == CONNECTION_OK) return found->second;
        reg.erase(found);
    }
    PGconn* conn = PQconnectdb(uri.c_str());
    if (!conn || PQstatus(conn) != CONNECTION_OK) {
        const std::string why = conn ? firstLine(PQerrorMessage(conn)) : std::string("out of memory");
        if (conn) PQfinish(conn);
        throw Failure(err::StoreFailure,
                      qv::fill(tr("The Quorvel data server \"%1\" can't be reached: %2."),
                           {cutForMessage(serverName(uri)), cutForMessage(why)}),
                      "Store");
    }
    std::shared_ptr<PgConnection> c(new PgConnection(uri, conn));
    // A lock is waited for as long as on the file store; dates come back as ISO text.
    c->exec("SET lock_timeout = '5s'; SET client_min_messages = warning; SET DateStyle = 'ISO, YMD'",
            c->where("opening"));
    reg.emplace(uri, c);
    return c;
}

void PgConnection::releaseAll() {
    registry().clear();
}

std::string PgConnection::where(std::string_view what) const {
    return std::string(what) + " in the store \"" + name_ + "\"";
}

// The connection went: the server stopped, restarted or ended this session.
// A result that never came carries no state, only libpq's words.
bool PgConnection::connectionLost(const std::string& code, const std::string& engine) const {
    if (PQstatus(conn_) != CONNECTION_OK || code.starts_with("08") || code.starts_with("57P")) return true;
    if (!code.empty()) return false;
    for (const char* words : {"server closed the connection", "no connection to the server",
                              "could not receive data", "could not send data", "terminating connection"})
        if (engine.find(words) != std::string::npos) return true;
    return false;
}

int64_t PgConnection::numberFrom(const char* text, std::string_view context) const {
    if (const auto n = wholeNumber(text ? text : "")) return *n;
    throw Failure(err::StoreFailure,
                  qv::fill(tr("The Quorvel data server sent \"%1\" where a number belongs (%2)."),
                           {cutForMessage(text ? text : ""), cutForMessage(context)}),
                  "Store");
}

void PgConnection::fail(const PGresult* result, std::string_view context) {
    const char* state = result ? PQresultErrorField(result, PG_DIAG_SQLSTATE) : nullptr;
    const std::string code = state ? state : "";
    const std::string engine = firstLine(result ? PQresultErrorMessage(result) : PQerrorMessage(conn_));
    // TRANSLATORS: %1 the store's name, %2 what is wrong with it ("is read-only (...)").
    const auto store = [&](const std::string& what) {
        return qv::fill(tr("The Quorvel data store \"%1\" %2"), {name_, what});
    };
    std::string clear;
    if (connectionLost(code, engine)) {
        registry().erase(uri_);
        clear = qv::fill(tr("The Quorvel data server \"%1\" can't be reached: %2"),
                     {cutForMessage(name_), cutForMessage(engine.empty() ? firstLine(PQerrorMessage(conn_)) : engine)});
    } else if (code == "55P03") {
        clear = store(qv::fill(tr("is busy: another program has kept it locked for more than %1 seconds"), {"5"}));
    } else if (code == "40P01" || code == "40001") {
        clear = store(qv::fill(tr("refused a save that met another user's (%1)"), {engine}));
    } else if (code == "42P01") {
        clear = store(qv::fill(tr("is missing a table (%1)"), {engine}));
    } else if (code == "42703") {
        clear = store(qv::fill(tr("is missing a column (%1)"), {engine}));
    } else if (code == "25006" || code == "42501") {
        clear = store(qv::fill(tr("is read-only (%1)"), {engine}));
    } else if (code == "0A000") {
        // A kept statement whose tables another program changed: the
        // server refuses it from now on, so it is prepared anew next time.
        statements_.clear();
        plans_.clear();
        tables_.clear();
        clear = store(tr("had its tables changed by another program: open it again"));
    }
    if (!clear.empty()) throw Failure(err::StoreFailure, clear + ".", "Store");
    throw Failure(err::StoreFailure, cutForMessage(engine) + " (" + cutForMessage(context) + ")", "Store");
}

// BEGIN costs no round trip of its own: it goes with the first statement
// of the transaction, and a transaction that ran none sends nothing.
void PgConnection::exec(const std::string& sql, std::string_view context) {
    if (sql == beginText() && !inTransaction()) {
        beginPending_ = true;
        return;
    }
    if (beginPending_ && sql == "COMMIT") {
        beginPending_ = false;
        return;
    }
    Result r(PQexec(conn_, withPendingBegin(sql).c_str()));
    const auto status = r ? PQresultStatus(r.get()) : PGRES_FATAL_ERROR;
    if (status != PGRES_COMMAND_OK && status != PGRES_TUPLES_OK) fail(r.get(), context);
}

void PgConnection::execQuiet(const std::string& sql) noexcept {
    if (beginPending_ && (sql == "ROLLBACK" || sql == "COMMIT")) {
        beginPending_ = false;
        return;
    }
    PQclear(PQexec(conn_, withPendingBegin(sql).c_str()));
}

std::string PgConnection::withPendingBegin(const std::string& sql) {
    if (!beginPending_) return sql;
    beginPending_ = false;
    return "BEGIN; " + sql;
}

// BEGIN and a prepared statement in one pipeline: the first failure, else
// the statement's result.
PgConnection::Result PgConnection::runAfterBegin(const std::string& name, int count,
                                                 const char* const* values) {
    beginPending_ = false;
    if (!PQenterPipelineMode(conn_)) return nullptr;
    const bool sent = PQsendQueryParams(conn_, "BEGIN", 0, nullptr, nullptr, nullptr, nullptr, 0) &&
                      PQsendQueryPrepared(conn_, name.c_str(), count, values, nullptr, nullptr, 0) &&
                      PQpipelineSync(conn_);
    Result out;
    bool failed = false;
    // Each query's result is followed by a null; the sync ends the pipeline.
    for (int nulls = 0; sent && nulls < 3;) {
        Result r(PQgetResult(conn_));
        if (!r) {
            if (PQstatus(conn_) != CONNECTION_OK) break;
            ++nulls;
            continue;
        }
        nulls = 0;
        const auto status = PQresultStatus(r.get());
        if (status == PGRES_PIPELINE_SYNC) break;
        if (failed || status == PGRES_PIPELINE_ABORTED) continue;
        failed = status != PGRES_COMMAND_OK && status != PGRES_TUPLES_OK;
        out = std::move(r);
    }
    if (!PQexitPipelineMode(conn_) || !sent) return nullptr;
    return out;
}

bool PgConnection::inTransaction() const {
    if (beginPending_) return true;
    const auto s = PQtransactionStatus(conn_);
    return s == PQTRANS_INTRANS || s == PQTRANS_INERROR || s == PQTRANS_ACTIVE;
}

const std::string& PgConnection::prepared(const std::string& sql, std::string_view context) {
    if (const auto found = statements_.find(sql); found != statements_.end()) return found->second;
    const std::string name = "qv" + std::to_string(++statementsMade_);
    Result r(PQprepare(conn_, name.c_str(), sql.c_str(), 0, nullptr));
    if (!r || PQresultStatus(r.get()) != PGRES_COMMAND_OK) fail(r.get(), context);
    return statements_.emplace(sql, name).first->second;
}

PgConnection::Result PgConnection::run(const std::string& sql, const std::vector<Value>& params,
                                       std::string_view context) {
    const std::string& name = prepared(sql, context);
    std::vector<std::string> texts(params.size());
    std::vector<const char*> values(params.size(), nullptr);
    for (size_t i = 0; i < params.size(); ++i) {
        if (!paramText(params[i], texts[i])) continue;
        // The server holds no NUL in a text; cut short there, a value would name another row.
        if (texts[i].find('\0') != std::string::npos)
            throw Failure(err::StoreFailure,
                          qv::fill(tr("The Quorvel data server \"%1\" can't hold a text with a NUL character (%2)."),
                               {cutForMessage(name_), cutForMessage(context)}),
                          "Store");
        values[i] = texts[i].c_str();
    }
    const int count = static_cast<int>(params.size());
    Result r = beginPending_
                   ? runAfterBegin(name, count, values.data())
                   : Result(PQexecPrepared(conn_, name.c_str(), count, values.data(), nullptr, nullptr, 0));
    const auto status = r ? PQresultStatus(r.get()) : PGRES_FATAL_ERROR;
    if (status != PGRES_COMMAND_OK && status != PGRES_TUPLES_OK) fail(r.get(), context);
    return r;
}

const PgConnection::TableColumns& PgConnection::tableColumns(Oid table, std::string_view context) {
    if (const auto found = tables_.find(table); found != tables_.end()) return found->second;
    const Result r = run(
        "SELECT c.relname, a.attnum, a.attname, format_type(a.atttypid, a.atttypmod), "
        "coalesce(col_description(a.attrelid, a.attnum), '') FROM pg_attribute a "
        "JOIN pg_class c ON c.oid = a.attrelid WHERE a.attrelid = $1 AND a.attnum > 0 AND NOT a.attisdropped",
        {Value(std::to_string(table))}, context);
    TableColumns t;
    for (int i = 0; i < PQntuples(r.get()); ++i) {
        t.table = PQgetvalue(r.get(), i, 0);
        t.byNumber[static_cast<int>(numberFrom(PQgetvalue(r.get(), i, 1), context))] = {
            PQgetvalue(r.get(), i, 2), PQgetvalue(r.get(), i, 3), PQgetvalue(r.get(), i, 4)};
    }
    return tables_.emplace(table, std::move(t)).first->second;
}

QueryPlan PgConnection::describe(const std::string& sql, bool withIdentity, std::string_view context) {
    const std::string& name = prepared(sql, context);
    Result d(PQdescribePrepared(conn_, name.c_str()));
    if (!d || PQresultStatus(d.get()) != PGRES_COMMAND_OK) fail(d.get(), context);
    const PGresult* res = d.get();
    QueryPlan p;
    p.selectSql = sql;
    p.withIdentity = withIdentity;
    const int total = PQnfields(res);
    const int n = withIdentity ? total - 1 : total;
    const Oid identityTable = withIdentity ? PQftable(res, total - 1) : InvalidOid;
    bool clash = false;
    for (int f = 0; f < n; ++f) {
        ColumnInfo col;
        col.name = PQfname(res, f);
        if (col.name == jet::kIdentityColumn) continue;  // the logic never sees it
        col.type = typeOfOid(PQftype(res, f));
        const Oid table = PQftable(res, f);
        if (table != InvalidOid) {
            const TableColumns& t = tableColumns(table, context);
            const auto found = t.byNumber.find(PQftablecol(res, f));
            if (found != t.byNumber.end()) {
                col.type = FieldCodec::typeFromDecl(found->second.decl.c_str());
                if (FieldCodec::equalsNoCase(found->second.spelling, col.name))
                    col.name = found->second.spelling;
                if (table == identityTable)
                    col.origin = found->second.name;
                else
                    clash = true;
            }
        }
        p.cols.push_back(std::move(col));
        p.fields.push_back(f);
    }
    if (withIdentity && !clash && identityTable != InvalidOid)
        p.table = tableColumns(identityTable, context).table;
    return p;
}

QueryPlan PgConnection::plan(const std::string& jetSource) {
    if (const auto found = plans_.find(jetSource); found != plans_.end()) return found->second;
    const std::string sql = jet::forPostgres(jet::translate(jetSource));
    const jet::SelectShape shape = jet::analyse(sql);
    const std::string ctx = where("opening the query \"" + jetSource + "\"");
    QueryPlan p;
    bool planned = false;
    // Rows that the order leaves equal come in the order they were added,
    // as from the file store. A text of no order is put in that order as it
    // is read: the server's sort of whole rows costs more than ours of keys.
    jet::SelectShape ordered = shape;
    std::string orderedSql = sql.substr(0, shape.end);
    const bool tieBreak = shape.singleTable && !shape.aggregate && !shape.hasLimit;
    if (tieBreak && shape.orderPos != std::string::npos) {
        orderedSql += std::string(", ") + jet::kIdentityColumn;
        ordered.end = orderedSql.size();
    }
    const std::string idSql =
        shape.isSelect ? jet::withRowid(orderedSql, ordered, jet::kIdentityColumn) : std::string();
    if (!idSql.empty()) {
        // A table without the identity column: the set is read-only. The
        // failed attempt must not spoil a save in progress.
        const bool guard = inTransaction();
        if (guard) exec("SAVEPOINT qv_plan", ctx);
        try {
            p = describe(idSql, true, ctx);
            planned = true;
        } catch (const Failure&) {
            if (!guard && PQstatus(conn_) != CONNECTION_OK) throw;
        }
        if (guard) {
            if (!planned) execQuiet("ROLLBACK TO qv_plan");
            exec("RELEASE qv_plan", ctx);
        }
    }
    if (!planned) {
        if (shape.isSelect) {
            p = describe(sql.substr(0, shape.end), false, ctx);
        } else {
            p.selectSql = sql;
            p.withIdentity = false;
        }
    }
    p.isSelect = shape.isSelect;
    p.identityOrder = tieBreak && shape.orderPos == std::string::npos && p.withIdentity;
    p.countSql = shape.isSelect ? jet::countQuery(sql, shape) : std::string();
    // The first rows with the count beside each, in one question: a small
    // set comes whole. The count is a subquery run once, so a large set is
    // counted without being sorted whole or sent whole.
    if (p.withIdentity && !shape.hasLimit)
        p.probeSql = jet::withColumns(orderedSql, ordered,
                                      std::string(jet::kIdentityColumn) + " AS " + jet::kRowidColumn + ", (" +
                                          p.countSql + ") AS qv_total") +
                     " LIMIT " + std::to_string(kProbeRows);
    // Sets with row identities learn their columns, as on the file store:
    // a later set asked for a column its load left out reads the rows again
    // once, which is rarer than a walk that copies every column.
    if (p.withIdentity) p.use = std::make_shared<ColumnUse>();
    if (shape.isSelect) plans_.emplace(jetSource, p);
    return p;
}

void PgConnection::read(const QueryPlan& plan, const std::vector<uint8_t>* only, RowStore& store,
                        const std::function<Cell*(int64_t)>& newRow, const Doing& doing) {
    const std::string context = doing.text();
    Result r = plan.isSelect || !plan.params.empty()
                   ? run(plan.selectSql, plan.params, context)
                   : Result(PQexec(conn_, withPendingBegin(plan.selectSql).c_str()));
    if (!plan.isSelect) {
        const auto status = r ? PQresultStatus(r.get()) : PGRES_FATAL_ERROR;
        if (status != PGRES_COMMAND_OK && status != PGRES_TUPLES_OK) fail(r.get(), context);
        return;
    }
    fill(plan, only, r.get(), PQnfields(r.get()) - 1, store, newRow, context);
}

void PgConnection::fill(const QueryPlan& plan, const std::vector<uint8_t>* only, const PGresult* res,
                        int idField, RowStore& store, const std::function<Cell*(int64_t)>& newRow,
                        std::string_view context) const {
    const int rows = PQntuples(res);
    const size_t n = plan.cols.size();
    std::vector<std::pair<int64_t, int>> order(static_cast<size_t>(rows));
    for (int row = 0; row < rows; ++row)
        order[static_cast<size_t>(row)] = {
            plan.withIdentity ? numberFrom(PQgetvalue(res, row, idField), context) : 0, row};
    if (plan.identityOrder) std::sort(order.begin(), order.end());
    for (const auto& [id, row] : order) {
        Cell* cells = newRow(id);
        if (!cells) continue;
        for (size_t c = 0; c < n; ++c)
            if (!only || (*only)[c]) readCell(res, row, plan.fields[c], cells[c], store);
    }
}

int64_t PgConnection::count(const QueryPlan& plan, const Doing& doing) {
    if (plan.countSql.empty()) return -1;
    const std::string context = doing.text();
    const Result r = run(plan.countSql, plan.params, context);
    if (PQntuples(r.get()) < 1) return -1;
    return numberFrom(PQgetvalue(r.get(), 0, 0), context);
}

int64_t PgConnection::countOrRead(const QueryPlan& plan, RowStore& store,
                                  const std::function<Cell*(int64_t)>& newRow, const Doing& doing,
                                  bool& read) {
    read = false;
    if (plan.probeSql.empty()) return count(plan, doing);
    const std::string context = doing.text();
    const Result r = run(plan.probeSql, plan.params, context);
    const PGresult* res = r.get();
    const int rows = PQntuples(res);
    const int fields = PQnfields(res);
    const int64_t total = rows == 0 ? 0 : numberFrom(PQgetvalue(res, 0, fields - 1), context);
    if (total == rows) {
        fill(plan, nullptr, res, fields - 2, store, newRow, context);
        read = true;
    }
    return total;
}

std::vector<PgConnection::TextRow> PgConnection::textRows(const std::string& sql,
                                                          const std::vector<std::string>& params,
                                                          std::string_view context) {
    std::vector<Value> values;
    values.reserve(params.size());
    for (const auto& p : params) values.emplace_back(p);
    const Result r = run(sql, values, context);
    const PGresult* res = r.get();
    std::vector<TextRow> rows(static_cast<size_t>(PQntuples(res)));
    const int fields = PQnfields(res);
    for (int row = 0; row < PQntuples(res); ++row) {
        TextRow& out = rows[static_cast<size_t>(row)];
        out.reserve(static_cast<size_t>(fields));
        for (int f = 0; f < fields; ++f) {
            if (PQgetisnull(res, row, f)) {
                out.emplace_back();
                continue;
            }
            std::string text(PQgetvalue(res, row, f), static_cast<size_t>(PQgetlength(res, row, f)));
            const Oid type = PQftype(res, f);
            if (type == kTimestampOid || type == kDateOid) {
                if (const auto serial = dateserial::fromIso(text)) text = dateserial::toIso(*serial);
            } else if (type == kBoolOid) {
                text = text == "t" ? "1" : "0";
            }
            out.emplace_back(std::move(text));
        }
    }
    return rows;
}

void PgConnection::removeRow(const std::string& table, int64_t id, std::string_view context) {
    run("DELETE FROM " + jet::quoteIdentifier(table) + " WHERE " + jet::kIdentityColumn + " = $1",
        {Value(std::to_string(id))}, context);
}

int64_t PgConnection::insertRow(const std::string& table, const std::vector<std::string>& names,
                                const std::vector<Value>& values, std::string_view context) {
    std::string cols;
    for (const auto& name : names) {
        if (!cols.empty()) cols += ", ";
        cols += jet::quoteIdentifier(name);
    }
    const std::string qTable = jet::quoteIdentifier(table);
    const std::string sql = (names.empty() ? "INSERT INTO " + qTable + " DEFAULT VALUES"
                                           : "INSERT INTO " + qTable + " (" + cols + ") VALUES (" +
                                                 placeholders(1, names.size()) + ")") +
                            " RETURNING " + jet::kIdentityColumn;
    const Result r = run(sql, values, context);
    return PQntuples(r.get()) > 0 ? numberFrom(PQgetvalue(r.get(), 0, 0), context) : 0;
}

int64_t PgConnection::updateRow(const std::string& table, const std::vector<std::string>& names,
                                const std::vector<Value>& values, const std::vector<std::string>& checkNames,
                                const std::vector<Value>& checkValues, int64_t id, std::string_view context) {
    std::string sets;
    for (size_t i = 0; i < names.size(); ++i) {
        if (i) sets += ", ";
        sets += jet::quoteIdentifier(names[i]) + " = $" + std::to_string(i + 1);
    }
    std::vector<Value> params = values;
    params.emplace_back(std::to_string(id));
    std::string sql = "UPDATE " + jet::quoteIdentifier(table) + " SET " + sets + " WHERE " +
                      jet::kIdentityColumn + " = $" + std::to_string(params.size());
    for (size_t i = 0; i < checkNames.size(); ++i) {
        params.push_back(checkValues[i]);
        sql += " AND " + jet::quoteIdentifier(checkNames[i]) + " IS NOT DISTINCT FROM $" +
               std::to_string(params.size());
    }
    const Result r = run(sql, params, context);
    return numberFrom(PQcmdTuples(r.get()), context);
}

// Within a save the row stays locked from this reading to the save's end,
// so the write that follows meets it as read.
bool PgConnection::readRow(const std::string& table, const std::vector<std::string>& names, int64_t id,
                           RowStore& store, Cell* cells, std::string_view context) {
    std::string cols;
    for (const auto& name : names)
        cols += (cols.empty() ? "" : ", ") + (name.empty() ? "NULL" : jet::quoteIdentifier(name));
    const Result r = run("SELECT " + cols + " FROM " + jet::quoteIdentifier(table) + " WHERE " +
                             jet::kIdentityColumn + " = $1" + (inTransaction() ? " FOR UPDATE" : ""),
                         {Value(std::to_string(id))}, context);
    if (PQntuples(r.get()) < 1) return false;
    for (size_t c = 0; c < names.size(); ++c) readCell(r.get(), 0, static_cast<int>(c), cells[c], store);
    return true;
}

}  // namespace qv
