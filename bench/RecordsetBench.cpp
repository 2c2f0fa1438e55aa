// The Recordset against the bare SQLite work of the same queries, in one run:
//  - walking a TASKS table of 10,000 rows, reading a few fields of each row;
//  - counting the rows of "SELECT tskGUIDID from TASKS" on 100,000 rows.
// Each store is made here, in a temporary folder, with the 27 columns of TASKS.

#include <benchmark/benchmark.h>
#include <sqlite3.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <map>
#include <string>

#include "store/Connection.h"
#include "store/Recordset.h"
#include "values/types/DateSerial.h"

namespace {

namespace fs = std::filesystem;

constexpr const char* kTasksTable =
    "CREATE TABLE TASKS (tskGUIDID TEXT NOT NULL UNIQUE, tskDesc TEXT, tskProject TEXT, "
    "tskProjectKey TEXT, tskStatus SMALLINT, tskImp SMALLINT, tskDifficulty SMALLINT, "
    "tskTimeNeeded INTEGER, tskTimeScheduled INTEGER, tskTimeSpent INTEGER, tskCurrent BOOLEAN, "
    "tskHasSchedule BOOLEAN, tskNotes TEXT, tskHasNotes BOOLEAN, tskCreatedDate DATETIME, "
    "tskLastMod DATETIME, tskDeadline DATETIME, tskDoneDate DATETIME, tskPossPoints INTEGER, "
    "tskCustSortQV INTEGER, tskCustSortCUR INTEGER, tskCustSortProj INTEGER, "
    "tskHasChecklist BOOLEAN, tskTCheckListGUID TEXT, tskTaskCatGUID TEXT, "
    "tskWasImported BOOLEAN, tskOUTEntityID TEXT)";

std::string guid(int i, int salt) {
    char buf[40];
    std::snprintf(buf, sizeof buf, "%08X-%04X-4%03X-8%03X-%012X", i * 2654435761u, salt & 0xffff, i & 0xfff,
                  (i >> 12) & 0xfff, i * 40503u + static_cast<unsigned>(salt));
    return buf;
}

void check(int rc, sqlite3* db) {
    if (rc != SQLITE_OK && rc != SQLITE_DONE && rc != SQLITE_ROW) {
        std::fprintf(stderr, "sqlite: %s\n", sqlite3_errmsg(db));
        std::abort();
    }
}

// A temporary folder with one TASKS store per row count, removed at exit.
class Stores {
public:
    static Stores& get() {
        static Stores stores;
        return stores;
    }

    const std::string& pathFor(int rows) {
        auto it = paths_.find(rows);
        if (it != paths_.end()) return it->second;
        const std::string path = dir_ + "/QuorvelData" + std::to_string(rows) + ".mdb";
        make(path, rows);
        return paths_.emplace(rows, path).first->second;
    }

    std::string connString(int rows) {
        return "Provider=Microsoft.Jet.OLEDB.4.0;Data Source=" + pathFor(rows) + ";";
    }

    ~Stores() {
        qv::Connection::releaseAll();
        std::error_code ec;
        fs::remove_all(dir_, ec);
    }

private:
    Stores() {
        // The connection registry must outlive this object: make it first.
        qv::Connection::releaseAll();
        std::string tmpl = (fs::temp_directory_path() / "qv-bench-XXXXXX").string();
        if (!::mkdtemp(tmpl.data())) std::abort();
        dir_ = tmpl;
    }

    static void make(const std::string& path, int rows) {
        sqlite3* db = nullptr;
        check(sqlite3_open_v2(path.c_str(), &db, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr), db);
        check(sqlite3_exec(db, kTasksTable, nullptr, nullptr, nullptr), db);
        check(
            sqlite3_exec(db, "CREATE INDEX idxTasksCurrent ON TASKS (tskCurrent)", nullptr, nullptr, nullptr),
            db);
        check(sqlite3_exec(db, "BEGIN", nullptr, nullptr, nullptr), db);
        sqlite3_stmt* ins = nullptr;
        std::string sql = "INSERT INTO TASKS VALUES (?";
        for (int c = 1; c < 27; ++c) sql += ",?";
        sql += ")";
        check(sqlite3_prepare_v2(db, sql.c_str(), -1, &ins, nullptr), db);
        const std::string notes(120, 'n');
        for (int i = 0; i < rows; ++i) {
            const std::string key = guid(i, 1);
            const std::string desc = "Task number " + std::to_string(i);
            const std::string project = "Project " + std::to_string(i % 20);
            const std::string projectKey = guid(i % 20, 2);
            const std::string created = qv::dateserial::toIso(37000.0 + i % 900 + 0.25);
            const std::string deadline = qv::dateserial::toIso(38000.0 + i % 700);
            int b = 1;
            auto text = [&](const std::string& s) {
                sqlite3_bind_text(ins, b++, s.data(), static_cast<int>(s.size()), SQLITE_TRANSIENT);
            };
            auto num = [&](int v) { sqlite3_bind_int(ins, b++, v); };
            text(key);
            text(desc);
            text(project);
            text(projectKey);
            num(i % 5);                   // tskStatus
            num(i % 5 + 1);               // tskImp
            num(i % 3 + 1);               // tskDifficulty
            num(60);                      // tskTimeNeeded
            num(30);                      // tskTimeScheduled
            num(i % 90);                  // tskTimeSpent
            num(i % 2);                   // tskCurrent
            num(0);                       // tskHasSchedule
            text(notes);                  // tskNotes
            num(1);                       // tskHasNotes
            text(created);                // tskCreatedDate
            text(created);                // tskLastMod
            text(deadline);               // tskDeadline
            sqlite3_bind_null(ins, b++);  // tskDoneDate
            num(10);                      // tskPossPoints
            num(i);                       // tskCustSortQV
            num(i);                       // tskCustSortCUR
            num(i);                       // tskCustSortProj
            num(0);                       // tskHasChecklist
            text("");                     // tskTCheckListGUID
            text("");                     // tskTaskCatGUID
            num(0);                       // tskWasImported
            text("");                     // tskOUTEntityID
            check(sqlite3_step(ins), db);
            sqlite3_reset(ins);
        }
        sqlite3_finalize(ins);
        check(sqlite3_exec(db, "COMMIT", nullptr, nullptr, nullptr), db);
        sqlite3_close(db);
    }

    std::string dir_;
    std::map<int, std::string> paths_;
};

// A bare connection, opened as the store layer opens its own.
sqlite3* bareConnection(const std::string& path) {
    sqlite3* db = nullptr;
    check(sqlite3_open_v2(path.c_str(), &db, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr), db);
    sqlite3_exec(db, "PRAGMA journal_mode=WAL", nullptr, nullptr, nullptr);
    return db;
}

constexpr int kWalkRows = 10'000;
constexpr int kCountRows = 100'000;
constexpr const char* kWalkQuery = "SELECT * from TASKS";

// (a) Walk: open, then for each row read the key, the description, the
// importance, the current flag and the deadline; close.
void BM_Walk_Recordset(benchmark::State& state) {
    const std::string cs = Stores::get().connString(kWalkRows);
    int64_t rows = 0;
    for (auto _ : state) {
        qv::Recordset rs;
        rs.CursorLocation = qv::adUseClient;
        rs.CursorType = qv::adOpenStatic;
        rs.LockType = qv::adLockBatchOptimistic;
        rs.Open(kWalkQuery, cs, qv::adOpenStatic, qv::adLockBatchOptimistic);
        qv::Field key = rs.Fields("tskGUIDID");
        qv::Field desc = rs.Fields("tskDesc");
        qv::Field imp = rs.Fields("tskImp");
        qv::Field current = rs.Fields("tskCURRENT");
        qv::Field deadline = rs.Fields("tskDeadline");
        while (!rs.EOF_()) {
            qv::Value a = key.value();
            qv::Value b = desc.value();
            qv::Value c = imp.value();
            qv::Value d = current.value();
            qv::Value e = deadline.value();
            benchmark::DoNotOptimize(a);
            benchmark::DoNotOptimize(b);
            benchmark::DoNotOptimize(c);
            benchmark::DoNotOptimize(d);
            benchmark::DoNotOptimize(e);
            ++rows;
            rs.MoveNext();
        }
        rs.Close();
    }
    state.SetItemsProcessed(rows);
}
BENCHMARK(BM_Walk_Recordset)->Unit(benchmark::kMillisecond);

// The same walk looking the fields up by name on every row, as dialog code does.
void BM_Walk_RecordsetByName(benchmark::State& state) {
    const std::string cs = Stores::get().connString(kWalkRows);
    int64_t rows = 0;
    for (auto _ : state) {
        qv::Recordset rs;
        rs.Open(kWalkQuery, cs, qv::adOpenStatic, qv::adLockBatchOptimistic);
        while (!rs.EOF_()) {
            qv::Value a = rs.Fields("tskGUIDID").value();
            qv::Value b = rs.Fields("tskDesc").value();
            qv::Value c = rs.Fields("tskImp").value();
            qv::Value d = rs.Fields("tskCURRENT").value();
            qv::Value e = rs.Fields("tskDeadline").value();
            benchmark::DoNotOptimize(a);
            benchmark::DoNotOptimize(b);
            benchmark::DoNotOptimize(c);
            benchmark::DoNotOptimize(d);
            benchmark::DoNotOptimize(e);
            ++rows;
            rs.MoveNext();
        }
        rs.Close();
    }
    state.SetItemsProcessed(rows);
}
BENCHMARK(BM_Walk_RecordsetByName)->Unit(benchmark::kMillisecond);

// The bare statement: the same query, the same fields made into the same values.
void BM_Walk_BareSqlite(benchmark::State& state) {
    sqlite3* db = bareConnection(Stores::get().pathFor(kWalkRows));
    sqlite3_stmt* st = nullptr;
    check(sqlite3_prepare_v2(db, kWalkQuery, -1, &st, nullptr), db);
    int64_t rows = 0;
    for (auto _ : state) {
        while (sqlite3_step(st) == SQLITE_ROW) {
            qv::Value a(std::string(reinterpret_cast<const char*>(sqlite3_column_text(st, 0)),
                                    static_cast<size_t>(sqlite3_column_bytes(st, 0))));
            qv::Value b(std::string(reinterpret_cast<const char*>(sqlite3_column_text(st, 1)),
                                    static_cast<size_t>(sqlite3_column_bytes(st, 1))));
            qv::Value c(static_cast<int16_t>(sqlite3_column_int(st, 5)));
            qv::Value d(sqlite3_column_int(st, 10) != 0);
            const auto* dl = reinterpret_cast<const char*>(sqlite3_column_text(st, 16));
            qv::Value e(qv::Date{qv::dateserial::fromIso(dl).value_or(0.0)});
            benchmark::DoNotOptimize(a);
            benchmark::DoNotOptimize(b);
            benchmark::DoNotOptimize(c);
            benchmark::DoNotOptimize(d);
            benchmark::DoNotOptimize(e);
            ++rows;
        }
        sqlite3_reset(st);
    }
    sqlite3_finalize(st);
    sqlite3_close(db);
    state.SetItemsProcessed(rows);
}
BENCHMARK(BM_Walk_BareSqlite)->Unit(benchmark::kMillisecond);

// (b) Count: open and RecordCount, rows never read.
void BM_Count_Recordset(benchmark::State& state) {
    const std::string cs = Stores::get().connString(kCountRows);
    int64_t total = 0;
    for (auto _ : state) {
        qv::Recordset rs;
        rs.Open("SELECT tskGUIDID from TASKS", cs, qv::adOpenStatic, qv::adLockReadOnly);
        total += rs.RecordCount();
        rs.Close();
    }
    benchmark::DoNotOptimize(total);
    state.counters["rows"] = static_cast<double>(total) / static_cast<double>(state.iterations());
}
BENCHMARK(BM_Count_Recordset)->Unit(benchmark::kMicrosecond);

void BM_Count_BareSqlite(benchmark::State& state) {
    sqlite3* db = bareConnection(Stores::get().pathFor(kCountRows));
    sqlite3_stmt* st = nullptr;
    check(sqlite3_prepare_v2(db, "SELECT COUNT(*) FROM TASKS", -1, &st, nullptr), db);
    int64_t total = 0;
    for (auto _ : state) {
        if (sqlite3_step(st) == SQLITE_ROW) total += sqlite3_column_int64(st, 0);
        sqlite3_reset(st);
    }
    benchmark::DoNotOptimize(total);
    state.counters["rows"] = static_cast<double>(total) / static_cast<double>(state.iterations());
    sqlite3_finalize(st);
    sqlite3_close(db);
}
BENCHMARK(BM_Count_BareSqlite)->Unit(benchmark::kMicrosecond);

}  // namespace
