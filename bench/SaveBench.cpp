// The cost of a durable save: one task row and 20 keyword rows written
// through the Recordset as New Task writes them.
//   /0: as it was: synchronous=NORMAL, each UpdateBatch its own commit
//       (21 commits; a killed process may leave half a task, and a commit
//       may be lost on power failure)
//   /1: as it is: synchronous=FULL, the whole save one SaveTransaction
//       (one commit, on the disk before the host is told)

#include <benchmark/benchmark.h>

#include <optional>
#include <string>

#include "session/globals/SessionGlobals.h"
#include "store/ADOCode.h"
#include "store/Connection.h"
#include "store/Recordset.h"
#include "store/SaveTransaction.h"
#include "support/BenchStore.h"

namespace {

using namespace qv;

void addRow(const std::string& sql, const std::string& column, const std::string& key, int n) {
    Recordset rs;
    rs.Open(sql, g().ConnString, adOpenStatic, adLockBatchOptimistic);
    rs.AddNew();
    rs.Fields(column) = Value(key);
    if (n >= 0) rs.Fields("ktKeyword") = Value("Keyword " + std::to_string(n));
    rs.Update();
    rs.UpdateBatch();
    rs.Close();
}

void BM_SaveTaskWith20Keywords_Store(benchmark::State& state) {
    static bench::BenchStore store("save-bench");
    store.use();
    ADOTest();
    const bool durable = state.range(0) == 1;
    auto conn = Connection::forConnString(g().ConnString);
    conn->exec(durable ? "PRAGMA synchronous=FULL" : "PRAGMA synchronous=NORMAL", "bench");
    static int64_t n = 0;  // keys stay unique across the runs of the process
    for (auto _ : state) {
        const std::string key = "T" + std::to_string(state.range(0)) + "-" + std::to_string(++n);
        std::optional<SaveTransaction> save;
        if (durable) save.emplace(conn);
        addRow("SELECT * from TASKS WHERE tskImp= 6", "tskGUIDID", key, -1);
        for (int k = 0; k < 20; ++k)
            addRow("SELECT * from TaskKeywords WHERE ktTASKGUID= 'none'", "ktTASKGUID", key, k);
        if (save) save->commit();
    }
    if (store.reporter.faults) state.SkipWithError("the error path ran");
}
BENCHMARK(BM_SaveTaskWith20Keywords_Store)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

}  // namespace
