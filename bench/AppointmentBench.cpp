// The Task Appointment dialog on a large store (100,000 tasks with two
// appointments each, 500 projects): SetupTask in mode 2 up to the modal
// wait, against the bare SQLite reads that open needs.

#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include <string>
#include <vector>

#include "dialogs/appointment/frmTAS2.h"
#include "installer/SampleData.h"
#include "session/clsTask2.h"
#include "support/BareReads.h"
#include "support/BenchStore.h"
#include "support/SampleAppointments.h"
#include "toolkit/TextEditor.h"

namespace {

using namespace qv;

constexpr int kTasks = 100000;
constexpr int kWorked = 4242;  // the sample task whose appointment is opened

struct LargeStore : bench::BenchStore {
    LargeStore() : bench::BenchStore("appointment-bench") {
        fillSampleStore(storePath(), {kTasks, 500, 2000, 50});
        bench::addSampleAppointments(storePath(), kTasks);
    }
};

LargeStore& largeStore() {
    static LargeStore s;
    return s;
}

void BM_AppointmentOpenBareReads(benchmark::State& state) {
    auto& s = largeStore();
    const std::string slot = bench::sampleAppointmentKey(kWorked);
    for (auto _ : state) {
        sqlite3* db = nullptr;
        sqlite3_open_v2(s.storePath().c_str(), &db, SQLITE_OPEN_READWRITE, nullptr);
        int64_t cells = bench::walkSettings(db);
        cells += bench::walk(db, "SELECT prjGUIDID, prjProject from PROJECTS ORDER BY prjProject");
        cells += bench::walk(db, "SELECT * from TASKAPPTS WHERE taGUIDID='" + slot + "'");
        cells += bench::walk(db, "SELECT * from TASKS WHERE tskGUIDID='T0004242-0000-0000-0000-000000000000'");
        benchmark::DoNotOptimize(cells);
        sqlite3_close(db);
    }
}
BENCHMARK(BM_AppointmentOpenBareReads)->Unit(benchmark::kMillisecond);

void BM_AppointmentOpen(benchmark::State& state) {
    auto& s = largeStore();
    s.use();
    clsTask2 task;
    const std::vector<std::string> ustuff(6);
    const std::string slot = bench::sampleAppointmentKey(kWorked);
    for (auto _ : state) {
        // The modal wait returns at once: the first scripted step hides the form.
        s.ui.queueAction([&task] { task.frmWorkTAS()->hide(); });
        task.SetupTask(2, slot, ustuff, 1, {}, slot);
        state.PauseTiming();
        if (task.frmWorkTAS()->controls().spellTask.text().empty()) state.SkipWithError("the slot was not read");
        task.frmWorkTAS()->unload();
        releaseDeferred();
        state.ResumeTiming();
    }
    if (s.reporter.faults) state.SkipWithError("the error path ran");
}
BENCHMARK(BM_AppointmentOpen)->Unit(benchmark::kMillisecond);

}  // namespace
