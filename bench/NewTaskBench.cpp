// The New Task dialog on a large store: the open in mode 0 up to the modal
// wait against the bare SQLite reads it needs, and a save with 20 keywords.

#include <benchmark/benchmark.h>
#include <sqlite3.h>
#include <stdlib.h>

#include <filesystem>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "dialogs/newtask/frmTask3.h"
#include "installer/StoreInstaller.h"
#include "support/BenchStore.h"
#include "support/TimeSetupTask.h"
#include "session/clsTask2.h"
#include "session/globals/SessionGlobals.h"
#include "store/ADOCode.h"
#include "toolkit/FakeClock.h"
#include "toolkit/Ports.h"
#include "toolkit/Reporter.h"
#include "toolkit/ScriptedUi.h"
#include "values/settings/Settings.h"

namespace {

using namespace qv;

using bench::largeStore;
using bench::walk;

void BM_NewTaskOpenBareReads(benchmark::State& state) {
    auto& s = largeStore();
    for (auto _ : state) {
        sqlite3* db = nullptr;
        sqlite3_open_v2(s.storePath().c_str(), &db, SQLITE_OPEN_READWRITE, nullptr);
        int64_t cells = bench::walkDialogLists(db);
        benchmark::DoNotOptimize(cells);
        sqlite3_close(db);
    }
}
BENCHMARK(BM_NewTaskOpenBareReads)->Unit(benchmark::kMillisecond);

void BM_NewTaskOpen(benchmark::State& state) {
    bench::timeSetupTask(
        state, largeStore(), 0, {}, {}, [](clsTask2& t) { return t.frm(); },
        [](clsTask2& t) {
            return t.frm()->controls().smtKeywords.count() < bench::kLargeKeywords ? "lists not filled" : "";
        });
}
BENCHMARK(BM_NewTaskOpen)->Unit(benchmark::kMillisecond);

void BM_NewTaskSaveWith20Keywords(benchmark::State& state) {
    auto& s = largeStore();
    s.use();
    auto form = std::make_shared<frmTask3>();
    form->load();
    g().SettingUp = true;
    LoadSettings();
    form->SetupDetails();
    form->SetProjectDefault();
    g().SettingUp = false;
    s.clock.advance(600);  // the start timer's defaults and first check
    auto& kw = form->controls().smtKeywords;
    int ticked = 0;
    for (const auto& t : kw.tools())
        if (t->type() == ttCheck && ticked < 20) {
            t->setChecked(true);
            ++ticked;
        }
    for (auto _ : state) {
        form->controls().spellTask.setText("Benchmark task");
        g().TaskMode = 0;
        if (!form->SaveTask()) state.SkipWithError("save refused");
    }
    if (s.reporter.faults) state.SkipWithError("the error path ran");
    form->unload();
    releaseDeferred();
}
BENCHMARK(BM_NewTaskSaveWith20Keywords)->Unit(benchmark::kMillisecond);

}  // namespace
