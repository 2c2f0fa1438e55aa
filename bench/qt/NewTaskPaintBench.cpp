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

namespace {

using namespace qv;

void BM_NewTaskFirstPaint(benchmark::State& state) {
    QTemporaryDir dir;
    const std::string folder = dir.path().toStdString();
    PaintProbe::sampleStore(folder, {});
    HostApp host(folder, false);
    PaintProbe::run(state, host, "frmTask3", [&host] { host.window().newTask(); });
}
BENCHMARK(BM_NewTaskFirstPaint)->UseManualTime()->Iterations(5)->Unit(benchmark::kMillisecond);

}  // namespace
