// From SetupTask to the New Task window's first paint and to the moment it
// is complete, on the desktop host with a large store (100,000 tasks, 500
// projects, 2,000 keywords in 50 subjects), offscreen. Manual time: the
// first paint; the counters carry the rest.

#include <benchmark/benchmark.h>

#include <QTemporaryDir>

#include "PaintProbe.h"
#include "installer/SampleData.h"
#include "installer/StoreInstaller.h"
#include "session/globals/SessionGlobals.h"
#include "store/ADOCode.h"
#include "view/HostApp.h"
#include "view/HostWindow.h"
#include "view/StepRunner.h"

namespace {

using namespace qv;

void BM_NewTaskFirstPaint(benchmark::State& state) {
    QTemporaryDir dir;
    const std::string folder = dir.path().toStdString();
    resetGlobals();
    installStore(folder);
    installSettingsFile(folder);
    fillSampleStore(pathInFolder(folder, kStoreFileName));
    HostApp host(folder, false);
    double complete = 0, growth = 0;
    for (auto _ : state) {
        const PaintTimes t = PaintProbe::measure(host, "frmTask3", "smtActions.DONE", [&host] { host.window().newTask(); });
        if (t.firstPaintMs < 0 || t.completeMs < 0) {
            state.SkipWithError("the New Task window was never painted whole");
            break;
        }
        state.SetIterationTime(t.firstPaintMs / 1e3);
        complete += t.completeMs;
        growth += t.memoryGrowthMb;
    }
    const double n = static_cast<double>(state.iterations());
    state.counters["complete_ms"] = n > 0 ? complete / n : 0;
    state.counters["rss_growth_MB"] = n > 0 ? growth / n : 0;
    StepRunner::closeAll();
}
BENCHMARK(BM_NewTaskFirstPaint)->UseManualTime()->Iterations(5)->Unit(benchmark::kMillisecond);

}  // namespace
