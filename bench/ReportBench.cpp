// MakeHTML of an Existing-Task-like report as its schedule grows: the
// builder appends to one text, so ten times the rows should cost about ten
// times the time.

#include <benchmark/benchmark.h>

#include "reports/TaskReport.h"
#include "support/ScheduleReport.h"
#include "toolkit/FakeClock.h"
#include "toolkit/Ports.h"

namespace {

using namespace qv;

void BM_MakeHTMLSchedule(benchmark::State& state) {
    FakeClock clock;
    ports().clock = &clock;
    bench::ScheduleReport::useExistingTaskSettings();
    bench::ScheduleReport source(static_cast<int32_t>(state.range(0)));
    TaskReport report(TaskReport::kExistingTask, source, "frmExistingTask");
    std::size_t bytes = 0;
    for (auto _ : state) {
        auto html = report.MakeHTML();
        if (!html) {
            state.SkipWithError("MakeHTML failed");
            break;
        }
        bytes = html->size();
        benchmark::DoNotOptimize(html);
    }
    state.counters["KB"] = static_cast<double>(bytes) / 1024.0;
    state.SetComplexityN(state.range(0));
    ports().clock = nullptr;
}
BENCHMARK(BM_MakeHTMLSchedule)->Arg(500)->Arg(5000)->Arg(50000)->Complexity()->Unit(benchmark::kMillisecond);

}  // namespace
