#include "view/HostStore.h"

#include <memory>
#include <stdexcept>

#include <sqlite3.h>

namespace qv {

namespace {

struct CloseDb {
    void operator()(sqlite3* db) const { sqlite3_close_v2(db); }
};
struct Finalize {
    void operator()(sqlite3_stmt* s) const { sqlite3_finalize(s); }
};
using Db = std::unique_ptr<sqlite3, CloseDb>;
using Stmt = std::unique_ptr<sqlite3_stmt, Finalize>;

Db openDb(const std::string& path) {
    sqlite3* raw = nullptr;
    const int rc = sqlite3_open_v2(path.c_str(), &raw, SQLITE_OPEN_READWRITE, nullptr);
    Db db(raw);
    if (rc != SQLITE_OK) throw std::runtime_error("cannot open " + path);
    sqlite3_busy_timeout(raw, 5000);
    return db;
}

Stmt prepare(sqlite3* db, const std::string& sql, const std::vector<std::string>& params = {}) {
    sqlite3_stmt* raw = nullptr;
    if (sqlite3_prepare_v2(db, sql.c_str(), -1, &raw, nullptr) != SQLITE_OK)
        throw std::runtime_error(sqlite3_errmsg(db));
    Stmt s(raw);
    for (std::size_t i = 0; i < params.size(); ++i)
        sqlite3_bind_text(raw, static_cast<int>(i + 1), params[i].c_str(), -1, SQLITE_TRANSIENT);
    return s;
}

std::string text(sqlite3_stmt* s, int col) {
    const auto* t = sqlite3_column_text(s, col);
    return t ? reinterpret_cast<const char*>(t) : std::string();
}

std::vector<NamedRow> named(const std::string& path, const std::string& sql) {
    Db db = openDb(path);
    Stmt s = prepare(db.get(), sql);
    std::vector<NamedRow> rows;
    while (sqlite3_step(s.get()) == SQLITE_ROW) rows.push_back({text(s.get(), 0), text(s.get(), 1)});
    return rows;
}

}  // namespace

HostStore::HostStore(std::string folder) : folder_(std::move(folder)) {}

std::string HostStore::path() const { return folder_ + "/QuorvelData.mdb"; }

std::vector<TaskRow> HostStore::tasks(bool currentOnly, const std::string& projectKey) const {
    Db db = openDb(path());
    std::string sql =
        "SELECT tskGUIDID, tskDesc, tskProject, tskProjectKey, tskStatus, tskDeadline, tskTimeNeeded, "
        "tskTimeSpent, tskPossPoints, tskCurrent, tskImp, tskDifficulty FROM TASKS WHERE 1=1";
    std::vector<std::string> params;
    if (currentOnly) sql += " AND tskCurrent<>0";
    if (!projectKey.empty()) {
        sql += " AND tskProjectKey=?";
        params.push_back(projectKey);
    }
    sql += currentOnly ? " ORDER BY tskCustSortCUR" : " ORDER BY tskCustSortQV";
    Stmt s = prepare(db.get(), sql, params);
    std::vector<TaskRow> rows;
    while (sqlite3_step(s.get()) == SQLITE_ROW) {
        sqlite3_stmt* r = s.get();
        rows.push_back({text(r, 0), text(r, 1), text(r, 2), text(r, 3),
                        sqlite3_column_type(r, 4) == SQLITE_NULL ? -1 : sqlite3_column_int(r, 4), text(r, 5),
                        sqlite3_column_int(r, 6), sqlite3_column_int(r, 7), sqlite3_column_int(r, 8),
                        sqlite3_column_int(r, 9) != 0, sqlite3_column_int(r, 10), sqlite3_column_int(r, 11)});
    }
    return rows;
}

std::vector<NamedRow> HostStore::catalog() const {
    return named(path(), "SELECT tskGUIDID, tskDesc FROM TASKSCAT ORDER BY tskDesc");
}

std::vector<NamedRow> HostStore::projects() const {
    return named(path(), "SELECT prjGUIDID, prjProject FROM PROJECTS ORDER BY prjProject");
}

std::vector<std::string> HostStore::statusList() const {
    std::vector<std::string> words;
    for (const auto& row : named(path(),
                                 "SELECT SetSettingName, SetSettingValue FROM Settings WHERE "
                                 "SetSettingSection='Status' ORDER BY setSettingDisplayOrd, SetSettingName"))
        words.push_back(row.name);
    return words;
}

std::vector<AppointmentRow> HostStore::appointments(const std::string& taskKey) const {
    Db db = openDb(path());
    Stmt s = prepare(db.get(),
                     "SELECT taGUIDID, taStartTime, taEndTime, taTaskDesc, taWasWorked FROM TASKAPPTS "
                     "WHERE taTaskGUIDID=? ORDER BY taStartTime",
                     {taskKey});
    std::vector<AppointmentRow> rows;
    while (sqlite3_step(s.get()) == SQLITE_ROW) {
        sqlite3_stmt* r = s.get();
        rows.push_back({text(r, 0), text(r, 1), text(r, 2), text(r, 3), sqlite3_column_int(r, 4) != 0});
    }
    return rows;
}

// The task, its keyword links and its appointments go together or not at all.
void HostStore::deleteTask(const std::string& guid) const {
    Db db = openDb(path());
    const auto run = [&](const std::string& sql, const std::vector<std::string>& params = {}) {
        Stmt s = prepare(db.get(), sql, params);
        if (sqlite3_step(s.get()) != SQLITE_DONE) throw std::runtime_error(sqlite3_errmsg(db.get()));
    };
    run("BEGIN IMMEDIATE");
    try {
        for (const char* sql : {"DELETE FROM TASKS WHERE tskGUIDID=?", "DELETE FROM TaskKeywords WHERE ktTASKGUID=?",
                                "DELETE FROM TASKAPPTS WHERE taTaskGUIDID=?"})
            run(sql, {guid});
        run("COMMIT");
    } catch (...) {
        sqlite3_exec(db.get(), "ROLLBACK", nullptr, nullptr, nullptr);
        throw;
    }
}

}  // namespace qv
