// From SetupTask to the Existing Task window's first paint and to the
// moment it is complete, for a task with 5,000 appointments on a store of
// 2,000 keywords (and 500 projects, 1,000 tasks), offscreen. Manual time:
// the first paint; the counters carry the rest.

#include <benchmark/benchmark.h>

#include <QTemporaryDir>

#include "PaintProbe.h"
#include "installer/SampleData.h"
#include "installer/StoreFile.h"
#include "installer/StoreInstaller.h"
#include "session/globals/SessionGlobals.h"
#include "store/ADOCode.h"
#include "view/HostApp.h"
#include "view/HostSession.h"

namespace {

using namespace qv;

constexpr const char* kTask = "BENCH000-0000-0000-0000-000000000001";

void addScheduledTask(const std::string& storePath, int appointments) {
    StoreFile store(storePath);
    store.exec(
        std::string("INSERT INTO TASKS (tskGUIDID, tskDesc, tskProject, tskStatus, tskImp, tskDifficulty, "
                    "tskTimeNeeded, tskTimeSpent, tskCurrent, tskHasSchedule, tskDeadline) VALUES ('") +
        kTask + "', 'Weekly reviews', 'Reviews', 1, 2, 1, 600, 0, 1, 1, '2020-01-01 17:00:00.000')");
    store.exec("WITH RECURSIVE n(i) AS (SELECT 0 UNION ALL SELECT i + 1 FROM n WHERE i + 1 < " +
               std::to_string(appointments) +
               ") INSERT INTO TASKAPPTS (taGUIDID, taTaskGUIDID, taStartTime, taEndTime, taWasWorked, "
               "taTimeWorked, taImp, "
               "taDifficulty) SELECT printf('A%07d-0000-0000-0000-000000000000', i), '" +
               std::string(kTask) +
               "', strftime('%Y-%m-%dT%H:%M:%S.000', '2020-01-01 08:00', '+' || i || ' hours'), "
               "strftime('%Y-%m-%dT%H:%M:%S.000', '2020-01-01 08:45', '+' || i || ' hours'), i % 2, 45, 2, 1 "
               "FROM n");
}

void BM_ExistingTaskFirstPaint(benchmark::State& state) {
    QTemporaryDir dir;
    const std::string folder = dir.path().toStdString();
    const std::string store = PaintProbe::sampleStore(folder, {1000, 500, 2000, 50});
    addScheduledTask(store, static_cast<int>(state.range(0)));
    HostApp host(folder, false);
    PaintProbe::run(state, host, "frmExistingTask", [&host] { host.session().openTask(kTask); });
}
BENCHMARK(BM_ExistingTaskFirstPaint)
    ->Arg(5000)
    ->UseManualTime()
    ->Iterations(5)
    ->Unit(benchmark::kMillisecond);

}  // namespace
