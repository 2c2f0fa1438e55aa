// From SetupTask in mode 2 to the Task Appointment window's first paint,
// on the desktop host with a large store (100,000 tasks, 500 projects, a
// task with 200 appointments), offscreen. Manual time: the first paint; the
// counter complete_ms the moment every sheet shown is whole.

#include <benchmark/benchmark.h>

#include <QTemporaryDir>

#include "PaintProbe.h"
#include "installer/SampleData.h"
#include "installer/StoreFile.h"
#include "installer/StoreInstaller.h"
#include "session/globals/SessionGlobals.h"
#include "store/ADOCode.h"
#include "view/HostApp.h"
#include "view/HostSession.h"
#include "view/StepRunner.h"

namespace {

using namespace qv;

constexpr const char* kSlot = "A0000000-0000-0000-0000-000000000000";

void BM_AppointmentFirstPaint(benchmark::State& state) {
    QTemporaryDir dir;
    const std::string folder = dir.path().toStdString();
    const std::string store = PaintProbe::sampleStore(folder, {});
    StoreFile(store).exec(
        std::string("INSERT INTO TASKAPPTS (taGUIDID, taTaskGUIDID, taProject, taProjectGUIDID, "
                    "taStartTime, taEndTime, taTaskDesc, taImp, taDifficulty, taWasWorked) "
                    "VALUES ('") +
        kSlot +
        "', 'T0004242-0000-0000-0000-000000000000', 'Project 242', "
        "'P0000242-0000-0000-0000-000000000000', '2026-11-24T09:00:00.000', "
        "'2026-11-24T10:30:00.000', 'Task 004242', 2, 2, 0)");
    HostApp host(folder, false);
    double complete = 0;
    for (auto _ : state) {
        const PaintTimes t = PaintProbe::measure(host, "frmTAS2", "smtActions.CANCEL",
                                                 [&host] { host.session().workAppointment(kSlot); });
        if (t.firstPaintMs < 0 || t.completeMs < 0) {
            state.SkipWithError("the Task Appointment window was never painted whole");
            break;
        }
        state.SetIterationTime(t.firstPaintMs / 1e3);
        complete += t.completeMs;
    }
    const double n = static_cast<double>(state.iterations());
    state.counters["complete_ms"] = n > 0 ? complete / n : 0;
    StepRunner::closeAll();
}
BENCHMARK(BM_AppointmentFirstPaint)->UseManualTime()->Iterations(20)->Unit(benchmark::kMillisecond);

}  // namespace
