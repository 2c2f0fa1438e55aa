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
#include "installer/SampleData.h"
#include "installer/StoreInstaller.h"
#include "support/BenchStore.h"
#include "session/clsTask2.h"
#include "session/globals/SessionGlobals.h"
#include "store/ADOCode.h"
#include "toolkit/FakeClock.h"
#include "toolkit/Ports.h"
#include "toolkit/Reporter.h"
#include "toolkit/ScriptedUi.h"
#include "values/Settings.h"

namespace {

using namespace qv;

constexpr int kTasks = 100000;
constexpr int kProjects = 500;
constexpr int kKeywords = 2000;
constexpr int kSubjects = 50;

const std::vector<std::string> kSections = {
    "DateFormats", "AppVersion", "Spellchecking", "UserStuff", "Status", "Importance Level",
    "Difficulty", "Time Needed", "TAS", "TASKWINDOW", "ETASK", "ETASK", "Points",
    "OutLookIntegration", "OutlookProfileString"};

struct LargeStore : bench::BenchStore {
    LargeStore() : bench::BenchStore("newtask-bench") {
        fillSampleStore(storePath(), {kTasks, kProjects, kKeywords, kSubjects});
    }
};

LargeStore& largeStore() {
    static LargeStore s;
    return s;
}

// Walks every row of a query, reading each column as text.
int64_t walk(sqlite3* db, const std::string& sql) {
    sqlite3_stmt* st = nullptr;
    sqlite3_prepare_v2(db, sql.c_str(), -1, &st, nullptr);
    int64_t cells = 0;
    while (sqlite3_step(st) == SQLITE_ROW)
        for (int c = 0; c < sqlite3_column_count(st); ++c) cells += sqlite3_column_text(st, c) != nullptr;
    sqlite3_finalize(st);
    return cells;
}

void BM_NewTaskOpenBareReads(benchmark::State& state) {
    auto& s = largeStore();
    for (auto _ : state) {
        sqlite3* db = nullptr;
        sqlite3_open_v2(s.storePath().c_str(), &db, SQLITE_OPEN_READWRITE, nullptr);
        int64_t cells = 0;
        for (const auto& section : kSections)
            cells += walk(db, "SELECT * from Settings WHERE SetUser='1' and SetSettingSection = '" + section +
                                  "' ORDER BY setSettingDisplayOrd");
        cells += walk(db, "SELECT prjGUIDID, prjProject from PROJECTS ORDER BY prjProject");
        cells += walk(db, "SELECT * from KEYWORDS ORDER BY keySubject, keyKeyword");
        benchmark::DoNotOptimize(cells);
        sqlite3_close(db);
    }
}
BENCHMARK(BM_NewTaskOpenBareReads)->Unit(benchmark::kMillisecond);

void BM_NewTaskOpen(benchmark::State& state) {
    auto& s = largeStore();
    s.use();
    clsTask2 task;
    const std::vector<std::string> ustuff(6);
    for (auto _ : state) {
        // The modal wait returns at once: the first scripted step hides the form.
        s.ui.queueAction([&task] { task.frm()->hide(); });
        task.SetupTask(0, {}, ustuff, 1, {});
        state.PauseTiming();
        if (task.frm()->controls().smtKeywords.count() < kKeywords) state.SkipWithError("lists not filled");
        task.frm()->unload();
        releaseDeferred();
        state.ResumeTiming();
    }
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
