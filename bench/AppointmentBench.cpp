// The Task Appointment dialog on the large store: SetupTask in mode 2 up
// to the modal wait, on an appointment of the busy task, against the bare
// SQLite reads that open needs.

#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include <string>
#include <vector>

#include "dialogs/appointment/frmTAS2.h"
#include "session/clsTask2.h"
#include "support/BenchStore.h"
#include "support/TimeSetupTask.h"
#include "toolkit/TextEditor.h"

namespace {

using namespace qv;

// The first of the busy task's appointments.
constexpr const char* kSlot = "A0000000-0000-0000-0000-000000000000";

void BM_AppointmentOpenBareReads(benchmark::State& state) {
    auto& s = bench::largeStore();
    for (auto _ : state) {
        sqlite3* db = nullptr;
        sqlite3_open_v2(s.storePath().c_str(), &db, SQLITE_OPEN_READWRITE, nullptr);
        int64_t cells = 0;
        for (const auto& section : bench::settingsSections())
            cells += bench::walk(db, "SELECT * from Settings WHERE SetUser='1' and SetSettingSection = '" + section +
                                         "' ORDER BY setSettingDisplayOrd");
        cells += bench::walk(db, "SELECT prjGUIDID, prjProject from PROJECTS ORDER BY prjProject");
        cells += bench::walk(db, std::string("SELECT * from TASKAPPTS WHERE taGUIDID='") + kSlot + "'");
        cells += bench::walk(db, std::string("SELECT * from TASKS WHERE tskGUIDID='") + bench::kBusyTask + "'");
        benchmark::DoNotOptimize(cells);
        sqlite3_close(db);
    }
}
BENCHMARK(BM_AppointmentOpenBareReads)->Unit(benchmark::kMillisecond);

void BM_AppointmentOpen(benchmark::State& state) {
    bench::timeSetupTask(
        state, bench::largeStore(), 2, kSlot, kSlot, [](clsTask2& t) { return t.frmWorkTAS(); },
        [](clsTask2& t) { return t.frmWorkTAS()->TATaskGUID != bench::kBusyTask ? "the slot was not read" : ""; });
}
BENCHMARK(BM_AppointmentOpen)->Unit(benchmark::kMillisecond);

}  // namespace
