// From SetupTask to the New Task window's first paint, on the desktop host
// with a large store (100,000 tasks, 500 projects, 2,000 keywords in 50
// subjects), offscreen. Manual time: only the open counts, not the close.

#include <benchmark/benchmark.h>

#include <QTemporaryDir>

#include "FirstPaint.h"
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
    for (auto _ : state) {
        // Closed by its Done tool once the start timer has run.
        const qint64 ns =
            bench::timeFirstPaint(host, "frmTask3", "smtActions.DONE", 700, [&host] { host.window().newTask(); });
        if (ns < 0) {
            state.SkipWithError("the New Task window was never painted");
            break;
        }
        state.SetIterationTime(static_cast<double>(ns) / 1e9);
    }
    StepRunner::closeAll();
}
BENCHMARK(BM_NewTaskFirstPaint)->UseManualTime()->Iterations(5)->Unit(benchmark::kMillisecond);

}  // namespace
