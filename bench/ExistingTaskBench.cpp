// The Existing Task dialog on the large store: SetupTask in mode 1 of a
// task with 50 keywords and 200 appointments up to the modal wait, against
// the bare SQLite reads it needs, and an update of a task with 20 keywords.

#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include <memory>
#include <string>
#include <vector>

#include "dialogs/existingtask/ExistingTaskFields.h"
#include "dialogs/existingtask/frmExistingTask.h"
#include "session/clsTask2.h"
#include "session/globals/SessionGlobals.h"
#include "support/BenchStore.h"
#include "support/TimeSetupTask.h"
#include "toolkit/Form.h"
#include "values/settings/Settings.h"

namespace {

using namespace qv;
using bench::largeStore;
using bench::walk;

void BM_ExistingTaskOpenBareReads(benchmark::State& state) {
    auto& s = largeStore();
    const std::string key = bench::kBusyTask;
    for (auto _ : state) {
        sqlite3* db = nullptr;
        sqlite3_open_v2(s.storePath().c_str(), &db, SQLITE_OPEN_READWRITE, nullptr);
        int64_t cells = bench::walkDialogLists(db);
        cells += walk(db, "SELECT * from TASKS WHERE tskGUIDID='" + key + "'");
        // The schedule: every column the grid shows, newest first.
        cells += walk(db, "SELECT taStartTime, taEndTime, taWasWorked, taTimeWorked, taTaskGUIDID, taGUIDID, "
                          "taTaskDesc, taProjectGUIDID, taProject, taImp, taDifficulty FROM TASKAPPTS WHERE "
                          "taTaskGUIDID='" + key + "' ORDER BY taStartTime DESC");
        cells += walk(db, "SELECT * from TaskKeywords WHERE ktTASKGUID='" + key + "'");
        benchmark::DoNotOptimize(cells);
        sqlite3_close(db);
    }
}
BENCHMARK(BM_ExistingTaskOpenBareReads)->Unit(benchmark::kMillisecond);

void BM_ExistingTaskOpen(benchmark::State& state) {
    bench::timeSetupTask(
        state, largeStore(), 1, bench::kBusyTask, {}, [](clsTask2& t) { return t.frmE(); },
        [](clsTask2& t) {
            auto& f = t.frmE()->fields();
            return f.SkedRowCount != 200 || f.record().Desc != "Busy task" ? "task not loaded" : "";
        });
}
BENCHMARK(BM_ExistingTaskOpen)->Unit(benchmark::kMillisecond);

void BM_ExistingTaskUpdateWith20Keywords(benchmark::State& state) {
    auto& s = largeStore();
    s.use();
    auto form = std::make_shared<frmExistingTask>();
    form->load();
    g().TaskMode = 1;
    g().CurrentTaskGUID = bench::kTwentyTask;
    LoadSettings();
    g().SettingUp = false;
    form->SetupDetails();
    int n = 0;
    for (auto _ : state) {
        form->controls().spellTask.setText("Busy task " + std::to_string(++n % 2));
        if (!form->UpdateTask()) state.SkipWithError("update refused");
    }
    if (s.reporter.faults) state.SkipWithError("the error path ran");
    form->unload();
    releaseDeferred();
}
BENCHMARK(BM_ExistingTaskUpdateWith20Keywords)->Unit(benchmark::kMillisecond);

}  // namespace
