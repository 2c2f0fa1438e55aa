#include "view/HostRows.h"

#include <sqlite3.h>

#include <stdexcept>

#include "store/PgConnection.h"
#include "store/SaveTransaction.h"
#include "store/StoreBackend.h"

namespace qv {

namespace {

struct Finalize {
    void operator()(sqlite3_stmt* s) const { sqlite3_finalize(s); }
};
using Stmt = std::unique_ptr<sqlite3_stmt, Finalize>;

Stmt prepare(sqlite3* db, const std::string& sql, const std::vector<std::string>& params) {
    sqlite3_stmt* raw = nullptr;
    if (sqlite3_prepare_v2(db, sql.c_str(), -1, &raw, nullptr) != SQLITE_OK)
        throw std::runtime_error(sqlite3_errmsg(db));
    Stmt s(raw);
    for (std::size_t i = 0; i < params.size(); ++i)
        sqlite3_bind_text(raw, static_cast<int>(i + 1), params[i].c_str(), -1, SQLITE_TRANSIENT);
    return s;
}

}  // namespace

HostRows::HostRows(const std::string& location) : location_(location) {
    if (isServerUri(location)) {
        server_ = PgConnection::forUri(location);
        return;
    }
    const int rc = sqlite3_open_v2(location.c_str(), &db_, SQLITE_OPEN_READWRITE, nullptr);
    if (rc != SQLITE_OK) {
        sqlite3_close_v2(db_);
        throw std::runtime_error("cannot open " + location);
    }
    sqlite3_busy_timeout(db_, 5000);
}

HostRows::~HostRows() {
    if (db_) sqlite3_close_v2(db_);
}

std::string HostRows::numbered(const std::string& sql) {
    std::string out;
    int n = 0;
    char quote = 0;
    for (const char c : sql) {
        if (quote) {
            if (c == quote) quote = 0;
        } else if (c == '\'' || c == '"') {
            quote = c;
        } else if (c == '?') {
            out += "$" + std::to_string(++n);
            continue;
        }
        out += c;
    }
    return out;
}

std::vector<HostRows::Row> HostRows::select(const std::string& sql, const std::vector<std::string>& params) {
    if (!server_) return selectFile(sql, params);
    return server_->textRows(numbered(sql), params, server_->where("reading the host's list"));
}

std::vector<HostRows::Row> HostRows::selectFile(const std::string& sql,
                                                const std::vector<std::string>& params) {
    Stmt s = prepare(db_, sql, params);
    const int columns = sqlite3_column_count(s.get());
    std::vector<Row> rows;
    int rc = SQLITE_ROW;
    while ((rc = sqlite3_step(s.get())) == SQLITE_ROW) {
        Row& row = rows.emplace_back();
        for (int c = 0; c < columns; ++c) {
            const auto* t = sqlite3_column_text(s.get(), c);
            if (t)
                row.emplace_back(reinterpret_cast<const char*>(t));
            else
                row.emplace_back();
        }
    }
    if (rc != SQLITE_DONE) throw std::runtime_error(sqlite3_errmsg(db_));
    return rows;
}

void HostRows::runTogether(const std::vector<std::string>& texts, const std::string& param) {
    if (!server_) return runTogetherOnFile(texts, param);
    // A save of the component's kind: a savepoint when one is open on the connection.
    SaveTransaction save(server_);
    for (const auto& sql : texts)
        (void)server_->textRows(numbered(sql), {param}, server_->where("removing a task"));
    save.commit();
}

void HostRows::runTogetherOnFile(const std::vector<std::string>& texts, const std::string& param) {
    const auto run = [&](const std::string& sql, const std::vector<std::string>& params) {
        Stmt s = prepare(db_, sql, params);
        if (sqlite3_step(s.get()) != SQLITE_DONE) throw std::runtime_error(sqlite3_errmsg(db_));
    };
    run("BEGIN IMMEDIATE", {});
    try {
        for (const auto& sql : texts) run(sql, {param});
        run("COMMIT", {});
    } catch (...) {
        sqlite3_exec(db_, "ROLLBACK", nullptr, nullptr, nullptr);
        throw;
    }
}

}  // namespace qv
