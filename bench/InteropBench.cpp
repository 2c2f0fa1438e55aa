// A calendar file of 10,000 tasks (a keyword each, an appointment for every
// other one) written from the store, and read into an empty store: each in
// one go, as File > Export Tasks... and Import Tasks... run them.

#include <benchmark/benchmark.h>

#include <string>

#include "installer/SampleData.h"
#include "installer/StoreFile.h"
#include "interop/Interop.h"
#include "interop/IcsReader.h"
#include "interop/IcsSource.h"
#include "session/globals/SessionGlobals.h"
#include "store/ADOCode.h"
#include "support/BenchStore.h"

namespace {

using namespace qv;

constexpr int kTasks = 10000;

std::string upTo(int n) {
    return "WITH RECURSIVE n(i) AS (SELECT 0 UNION ALL SELECT i + 1 FROM n WHERE i < " + std::to_string(n - 1) + ") ";
}

// The sample store's tasks, with notes, a keyword link each and an
// appointment for every other task.
bench::BenchStore& filledStore() {
    static bench::BenchStore store("interop-bench");
    static bool filled = false;
    if (!filled) {
        fillSampleStore(store.storePath(), SampleSize{kTasks, 100, 200, 10});
        StoreFile file(store.storePath());
        file.exec("UPDATE TASKS SET tskNotes = 'Notes, with \"quotes\"; and' || char(10) || 'a second line'");
        file.exec(upTo(kTasks) +
                  "INSERT INTO TaskKeywords (ktTASKGUID, ktTask, ktKEYGUID, ktKeyword) "
                  "SELECT printf('T%07d-0000-0000-0000-000000000000', i), printf('Task %06d', i), "
                  "printf('K%07d-0000-0000-0000-000000000000', i % 200), printf('Keyword %04d', i % 200) FROM n");
        file.exec(upTo(kTasks / 2) +
                  "INSERT INTO TASKAPPTS (taGUIDID, taTaskGUIDID, taProject, taProjectGUIDID, taStartTime, "
                  "taEndTime, taTaskDesc, taImp, taDifficulty, taWasWorked, taTimeWorked, taDuration) "
                  "SELECT printf('A%07d-0000-0000-0000-000000000000', i), "
                  "printf('T%07d-0000-0000-0000-000000000000', i * 2), 'Project', "
                  "printf('P%07d-0000-0000-0000-000000000000', i % 100), '2026-03-01T09:00:00.000', "
                  "'2026-03-01T10:00:00.000', printf('Task %06d', i * 2), 2, 2, i % 2, 30, 60 FROM n");
        filled = true;
    }
    store.use();
    ADOTest();
    return store;
}

std::string fileOfAllTasks() {
    const auto& store = filledStore();
    const std::string path = store.folder() + "/all.ics";
    Interop::exportCalendar(path, ExportScope::all());
    return path;
}

void BM_ExportCalendar(benchmark::State& state) {
    auto& store = filledStore();
    const std::string path = store.folder() + "/export.ics";
    for (auto _ : state) {
        const auto out = Interop::exportCalendar(path, ExportScope::all());
        if (!out.ok || out.tasks != kTasks) state.SkipWithError(out.message.c_str());
    }
    state.counters["tasks"] = kTasks;
}
BENCHMARK(BM_ExportCalendar)->Unit(benchmark::kMillisecond)->UseRealTime();

void BM_ImportCalendarIntoEmptyStore(benchmark::State& state) {
    const std::string path = fileOfAllTasks();
    static bench::BenchStore empty("interop-bench-empty");
    for (auto _ : state) {
        state.PauseTiming();
        {
            StoreFile file(empty.storePath());
            file.exec("DELETE FROM TASKS; DELETE FROM TASKAPPTS; DELETE FROM TaskKeywords; DELETE FROM PROJECTS; "
                      "DELETE FROM KEYWORDS");
        }
        empty.use();
        ADOTest();
        state.ResumeTiming();
        const auto in = Interop::importCalendar(path);
        if (!in.ok || in.counts.tasksAdded != kTasks) state.SkipWithError(in.message.c_str());
    }
    state.counters["tasks"] = kTasks;
}
BENCHMARK(BM_ImportCalendarIntoEmptyStore)->Unit(benchmark::kMillisecond)->UseRealTime();

// Of an import, the reading and checking of the file alone (libical's
// parse and the values taken from it), before the store is touched.
void BM_ReadCalendarFile(benchmark::State& state) {
    const std::string path = fileOfAllTasks();
    for (auto _ : state) {
        const ImportSet set = IcsReader::read(IcsSource(path));
        benchmark::DoNotOptimize(set.tasks.size());
    }
    state.counters["tasks"] = kTasks;
}
BENCHMARK(BM_ReadCalendarFile)->Unit(benchmark::kMillisecond)->UseRealTime();

// The same file again into the store it came from: every task read and
// compared, nothing written.
void BM_ImportCalendarUnchanged(benchmark::State& state) {
    const std::string path = fileOfAllTasks();
    for (auto _ : state) {
        const auto in = Interop::importCalendar(path);
        if (!in.ok || in.counts.tasksChanged != 0) state.SkipWithError(in.message.c_str());
    }
    state.counters["tasks"] = kTasks;
}
BENCHMARK(BM_ImportCalendarUnchanged)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace
