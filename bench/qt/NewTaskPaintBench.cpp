// From SetupTask to the New Task window's first paint, on the desktop host
// with a large store (100,000 tasks, 500 projects, 2,000 keywords in 50
// subjects), offscreen. Manual time: only the open counts, not the close.

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QTemporaryDir>

#include "FirstPaint.h"
#include "installer/SampleData.h"
#include "installer/StoreInstaller.h"
#include "kit/FormWindow.h"
#include "kit/QtUi.h"
#include "session/globals/SessionGlobals.h"
#include "store/ADOCode.h"
#include "view/HostApp.h"
#include "view/HostWindow.h"
#include "view/StepRunner.h"

namespace {

using namespace qv;

// Opens New Task, waits for its paint, and closes it by its Done tool.
qint64 openOnce(HostApp& host) {
    QElapsedTimer clock;
    bench::FirstPaint paint(clock);
    host.ui().setWindowBuilt([&paint](FormWindow& w) {
        if (w.objectName() == "frmTask3") w.installEventFilter(&paint);
    });
    StepRunner steps(30000);
    steps.when("painted", [&paint] { return paint.at >= 0; }, [] {
        StepRunner::clickTool("frmTask3", "smtActions.DONE");
    }, 700);
    steps.onFinished([] { StepRunner::closeAll(); });
    steps.start();
    clock.start();
    host.window().newTask();
    host.ui().setWindowBuilt(nullptr);
    return paint.at;
}

void BM_NewTaskFirstPaint(benchmark::State& state) {
    QTemporaryDir dir;
    const std::string folder = dir.path().toStdString();
    resetGlobals();
    installStore(folder);
    installSettingsFile(folder);
    fillSampleStore(pathInFolder(folder, kStoreFileName));
    HostApp host(folder, false);
    for (auto _ : state) {
        const qint64 ns = openOnce(host);
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
