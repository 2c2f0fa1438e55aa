// The store on a PostgreSQL server over a Unix socket: SetupTask in mode 0
// (New Task), 1 (Existing Task) and 2 (Task Appointment) on the large store, and a
// Recordset walk of 10,000 tasks, each against the same reads done with bare libpq
// on one open connection. The same
// opens on the SQLite file are NewTaskBench, ExistingTaskBench and AppointmentBench. Needs
// QV_STORE_URI (scripts/bench-server.sh starts a throw-away server).

#include <benchmark/benchmark.h>
#include <libpq-fe.h>

#include <cstdlib>
#include <string>
#include <vector>

#include "dialogs/appointment/frmTAS2.h"
#include "dialogs/existingtask/ExistingTaskFields.h"
#include "dialogs/existingtask/frmExistingTask.h"
#include "dialogs/newtask/frmTask3.h"
#include "installer/StoreFile.h"
#include "session/clsTask2.h"
#include "store/Recordset.h"
#include "values/types/DateSerial.h"
#include "support/BenchStore.h"
#include "support/TimeSetupTask.h"

namespace {

using namespace qv;

constexpr const char* kSlot = "A0000000-0000-0000-0000-000000000000";

std::string serverUri() {
    const char* uri = std::getenv("QV_STORE_URI");
    return uri ? uri : "";
}

std::string series(int n) {
    return " FROM generate_series(0, " + std::to_string(n - 1) + ") AS i";
}
std::string key(const char* prefix, const char* expr) {
    return std::string("'") + prefix + "' || lpad((" + expr +
           ")::text, 7, '0') || '-0000-0000-0000-000000000000'";
}

// The large store of the file benchmarks, made on the server.
bench::BenchStore* makeLarge() {
    auto* s = new bench::BenchStore("server-large", serverUri());
    StoreFile store(s->storePath());
    store.exec("BEGIN");
    store.exec("INSERT INTO PROJECTS (prjGUIDID, prjProject, prjSummary, StatusLong) SELECT " +
               key("P", "i") + ", 'Project ' || lpad(i::text, 3, '0'), 'Bulk', 4" + series(500));
    store.exec("INSERT INTO KEYWORDS (keyGUIDID, keySubject, keyKeyword) SELECT " + key("K", "i") +
               ", 'Subject ' || lpad((i % 50)::text, 2, '0'), 'Keyword ' || lpad(i::text, 4, '0')" +
               series(bench::kLargeKeywords));
    store.exec(
        "INSERT INTO TASKS (tskGUIDID, tskDesc, tskProject, tskProjectKey, tskStatus, tskImp, tskDifficulty, "
        "tskTimeNeeded, tskTimeSpent, tskCurrent, tskPossPoints, tskCustSortQV, tskCustSortCUR, "
        "tskCustSortProj, tskDeadline) SELECT " +
        key("T", "i") +
        ", 'Task ' || lpad(i::text, 6, '0'), "
        "'Project ' || lpad((i % 500)::text, 3, '0'), " +
        key("P", "i % 500") +
        ", i % 6, i % 5, i % 5, 30, 0, (i % 10 = 0)::int::smallint, 10, i, i, i, '1899-12-30'" +
        series(100000));
    store.exec(std::string(
                   "INSERT INTO TASKS (tskGUIDID, tskDesc, tskProject, tskProjectKey, tskStatus, tskImp, "
                   "tskDifficulty, tskTimeNeeded, tskTimeSpent, tskTimeScheduled, tskCurrent, tskPossPoints, "
                   "tskHasSchedule, tskDeadline) VALUES ('") +
               bench::kBusyTask +
               "', 'Busy task', 'Project 001', 'P0000001-0000-0000-0000-000000000000', 1, 2, 2, 90, 30, 0, "
               "1, 10, 1, "
               "'2030-01-01 12:00')");
    store.exec(std::string("INSERT INTO TaskKeywords (ktTASKGUID, ktTask, ktKEYGUID, ktKeyword) SELECT '") +
               bench::kBusyTask +
               "', 'Busy task', keyGUIDID, keyKeyword FROM KEYWORDS ORDER BY keyGUIDID LIMIT 50");
    store.exec(
        std::string("INSERT INTO TASKAPPTS (taGUIDID, taTaskGUIDID, taProject, taProjectGUIDID, taStartTime, "
                    "taEndTime, taTaskDesc, taImp, taDifficulty, taWasWorked, taTimeWorked) SELECT ") +
        key("A", "i") + ", '" + bench::kBusyTask +
        "', 'Project 001', 'P0000001-0000-0000-0000-000000000000', "
        "timestamp '2026-01-01' + (2 * i) * interval '1 hour', "
        "timestamp '2026-01-01' + (2 * i + 1) * interval '1 hour', 'Busy task', 2, 2, 0, 0" +
        series(200));
    store.exec("COMMIT");
    store.exec("ANALYZE");
    return s;
}

bench::BenchStore* large() {
    static bench::BenchStore* s = serverUri().empty() ? nullptr : makeLarge();
    return s;
}

int64_t walk(PGconn* c, const std::string& sql) {
    PGresult* r = PQexec(c, sql.c_str());
    int64_t cells = 0;
    for (int row = 0; row < PQntuples(r); ++row)
        for (int f = 0; f < PQnfields(r); ++f) cells += PQgetvalue(r, row, f)[0] != '\0';
    PQclear(r);
    return cells;
}

int64_t settingsReads(PGconn* c) {
    int64_t cells = 0;
    for (const auto& section : bench::settingsSections())
        cells += walk(c, "SELECT * from Settings WHERE SetUser='1' and SetSettingSection = '" + section +
                             "' ORDER BY setSettingDisplayOrd");
    cells += walk(c, "SELECT prjGUIDID, prjProject from PROJECTS ORDER BY prjProject");
    return cells;
}

// The bare reads on one connection opened before timing, as the component keeps its own.
template <typename Reads>
void bareReads(benchmark::State& state, Reads reads) {
    auto* s = large();
    if (!s) return state.SkipWithError("no server: set QV_STORE_URI");
    PGconn* c = PQconnectdb(s->storePath().c_str());
    for (auto _ : state) benchmark::DoNotOptimize(reads(c));
    PQfinish(c);
}

void BM_ServerNewTaskOpenBareLibpq(benchmark::State& state) {
    bareReads(state, [](PGconn* c) {
        return settingsReads(c) + walk(c, "SELECT * from KEYWORDS ORDER BY keySubject, keyKeyword");
    });
}
BENCHMARK(BM_ServerNewTaskOpenBareLibpq)->Unit(benchmark::kMillisecond);

void BM_ServerNewTaskOpen(benchmark::State& state) {
    auto* s = large();
    if (!s) return state.SkipWithError("no server: set QV_STORE_URI");
    bench::timeSetupTask(
        state, *s, 0, {}, {}, [](clsTask2& t) { return t.frm(); },
        [](clsTask2& t) {
            return t.frm()->controls().smtKeywords.count() < bench::kLargeKeywords ? "lists not filled" : "";
        });
}
BENCHMARK(BM_ServerNewTaskOpen)->Unit(benchmark::kMillisecond);

void BM_ServerAppointmentOpenBareLibpq(benchmark::State& state) {
    bareReads(state, [](PGconn* c) {
        return settingsReads(c) +
               walk(c, std::string("SELECT * from TASKAPPTS WHERE taGUIDID='") + kSlot + "'") +
               walk(c, std::string("SELECT * from TASKS WHERE tskGUIDID='") + bench::kBusyTask + "'");
    });
}
BENCHMARK(BM_ServerAppointmentOpenBareLibpq)->Unit(benchmark::kMillisecond);

void BM_ServerAppointmentOpen(benchmark::State& state) {
    auto* s = large();
    if (!s) return state.SkipWithError("no server: set QV_STORE_URI");
    bench::timeSetupTask(
        state, *s, 2, kSlot, kSlot, [](clsTask2& t) { return t.frmWorkTAS(); },
        [](clsTask2& t) {
            return t.frmWorkTAS()->TATaskGUID != bench::kBusyTask ? "the slot was not read" : "";
        });
}
BENCHMARK(BM_ServerAppointmentOpen)->Unit(benchmark::kMillisecond);

void BM_ServerExistingTaskOpenBareLibpq(benchmark::State& state) {
    bareReads(state, [](PGconn* c) {
        const std::string key = bench::kBusyTask;
        return settingsReads(c) + walk(c, "SELECT * from KEYWORDS ORDER BY keySubject, keyKeyword") +
               walk(c, "SELECT * from TASKS WHERE tskGUIDID='" + key + "'") +
               walk(c,
                    "SELECT taStartTime, taEndTime, taWasWorked, taTimeWorked, taTaskGUIDID, taGUIDID, "
                    "taTaskDesc, taProjectGUIDID, taProject, taImp, taDifficulty FROM TASKAPPTS WHERE "
                    "taTaskGUIDID='" +
                        key + "' ORDER BY taStartTime DESC") +
               walk(c, "SELECT * from TaskKeywords WHERE ktTASKGUID='" + key + "'");
    });
}
BENCHMARK(BM_ServerExistingTaskOpenBareLibpq)->Unit(benchmark::kMillisecond);

void BM_ServerExistingTaskOpen(benchmark::State& state) {
    auto* s = large();
    if (!s) return state.SkipWithError("no server: set QV_STORE_URI");
    bench::timeSetupTask(
        state, *s, 1, bench::kBusyTask, {}, [](clsTask2& t) { return t.frmE(); },
        [](clsTask2& t) {
            auto& f = t.frmE()->fields();
            return f.SkedRowCount != 200 || f.record().Desc != "Busy task" ? "task not loaded" : "";
        });
}
BENCHMARK(BM_ServerExistingTaskOpen)->Unit(benchmark::kMillisecond);

// The walk: 10,000 tasks, reading the key, the description, the importance,
// the current flag and the deadline of each.
constexpr const char* kServerWalk = "SELECT * from TASKS WHERE tskCustSortQV < 10000";

void BM_ServerWalk_Recordset(benchmark::State& state) {
    auto* s = large();
    if (!s) return state.SkipWithError("no server: set QV_STORE_URI");
    const std::string cs = "Provider=Microsoft.Jet.OLEDB.4.0;Data Source=" + s->storePath() + ";";
    int64_t rows = 0;
    for (auto _ : state) {
        Recordset rs;
        rs.Open(kServerWalk, cs, adOpenStatic, adLockBatchOptimistic);
        const Field key = rs.Fields("tskGUIDID");
        const Field desc = rs.Fields("tskDesc");
        const Field imp = rs.Fields("tskImp");
        const Field current = rs.Fields("tskCURRENT");
        const Field deadline = rs.Fields("tskDeadline");
        for (; !rs.EOF_(); rs.MoveNext(), ++rows) {
            benchmark::DoNotOptimize(key.value());
            benchmark::DoNotOptimize(desc.value());
            benchmark::DoNotOptimize(imp.value());
            benchmark::DoNotOptimize(current.value());
            benchmark::DoNotOptimize(deadline.value());
        }
        rs.Close();
    }
    state.SetItemsProcessed(rows);
}
BENCHMARK(BM_ServerWalk_Recordset)->Unit(benchmark::kMillisecond);

void BM_ServerWalk_BareLibpq(benchmark::State& state) {
    auto* s = large();
    if (!s) return state.SkipWithError("no server: set QV_STORE_URI");
    PGconn* c = PQconnectdb(s->storePath().c_str());
    int64_t rows = 0;
    for (auto _ : state) {
        PGresult* r = PQexec(c, kServerWalk);
        const int n = PQntuples(r);
        const int fKey = PQfnumber(r, "tskguidid"), fDesc = PQfnumber(r, "tskdesc"), fImp = PQfnumber(r, "tskimp");
        const int fCurrent = PQfnumber(r, "tskcurrent"), fDeadline = PQfnumber(r, "tskdeadline");
        for (int i = 0; i < n; ++i, ++rows) {
            benchmark::DoNotOptimize(Value(std::string(PQgetvalue(r, i, fKey), PQgetlength(r, i, fKey))));
            benchmark::DoNotOptimize(Value(std::string(PQgetvalue(r, i, fDesc), PQgetlength(r, i, fDesc))));
            benchmark::DoNotOptimize(Value(static_cast<int16_t>(std::atoi(PQgetvalue(r, i, fImp)))));
            benchmark::DoNotOptimize(Value(std::atoi(PQgetvalue(r, i, fCurrent)) != 0));
            benchmark::DoNotOptimize(
                Value(Date{dateserial::fromIso(PQgetvalue(r, i, fDeadline)).value_or(0.0)}));
        }
        PQclear(r);
    }
    PQfinish(c);
    state.SetItemsProcessed(rows);
}
BENCHMARK(BM_ServerWalk_BareLibpq)->Unit(benchmark::kMillisecond);

}  // namespace
