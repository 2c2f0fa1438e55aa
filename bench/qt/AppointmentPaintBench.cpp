// From SetupTask in mode 2 to the Task Appointment window's first paint, on
// the desktop host with the large store (100,000 tasks with two
// appointments each, 500 projects), offscreen. Manual time: only the open
// counts, not the close.

#include <benchmark/benchmark.h>

#include <QTemporaryDir>

#include "FirstPaint.h"
#include "installer/SampleData.h"
#include "installer/StoreInstaller.h"
#include "session/globals/SessionGlobals.h"
#include "store/ADOCode.h"
#include "support/SampleAppointments.h"
#include "view/HostApp.h"
#include "view/HostSession.h"
#include "view/StepRunner.h"

namespace {

using namespace qv;

void BM_AppointmentFirstPaint(benchmark::State& state) {
    QTemporaryDir dir;
    const std::string folder = dir.path().toStdString();
    resetGlobals();
    installStore(folder);
    installSettingsFile(folder);
    const std::string store = pathInFolder(folder, kStoreFileName);
    fillSampleStore(store);
    bench::addSampleAppointments(store, SampleSize{}.tasks);
    HostApp host(folder, false);
    const std::string slot = bench::sampleAppointmentKey(4242);
    for (auto _ : state) {
        const qint64 ns = bench::timeFirstPaint(host, "frmTAS2", "smtActions.CANCEL", 100,
                                                [&host, &slot] { host.session().workAppointment(slot); });
        if (ns < 0) {
            state.SkipWithError("the Task Appointment window was never painted");
            break;
        }
        state.SetIterationTime(static_cast<double>(ns) / 1e9);
    }
    StepRunner::closeAll();
}
BENCHMARK(BM_AppointmentFirstPaint)->UseManualTime()->Iterations(20)->Unit(benchmark::kMillisecond);

}  // namespace
