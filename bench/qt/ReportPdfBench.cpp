// From the written report of an Existing-Task-like report with 5,000
// appointments to its PDF: the rich-text layout, the page cuts and the
// painting of every page with its footer.

#include <benchmark/benchmark.h>

#include <QTemporaryDir>
#include <fstream>

#include "print/QtPrintSurface.h"
#include "reports/TaskReport.h"
#include "session/globals/SessionGlobals.h"
#include "support/ScheduleReport.h"
#include "toolkit/FakeClock.h"
#include "toolkit/Ports.h"

namespace {

using namespace qv;

void BM_ReportToPdf(benchmark::State& state) {
    QTemporaryDir dir;
    FakeClock clock;
    ports().clock = &clock;
    g().AppPath = dir.path().toStdString();
    bench::ScheduleReport::useExistingTaskSettings();
    bench::ScheduleReport source(static_cast<int32_t>(state.range(0)));
    TaskReport report(TaskReport::kExistingTask, source, "frmExistingTask");
    const std::string file = dir.path().toStdString() + "/ExistingTask.htm";
    std::ofstream(file) << report.MakeHTML().value_or("");
    PrintJob job;
    job.file = file;
    job.footer = "{newline}{line}{Left}Quorvel - Version 1.14{Right}{PageNum}";
    job.footerFont = "Arial";
    job.footerSize = 8;
    job.marginLeft = job.marginRight = job.marginTop = job.marginBottom = 1440;
    QtPrintSurface surface(QtPrintSurface::Options{false, false, false});
    for (auto _ : state) surface.print(job);
    state.counters["pages"] = surface.lastPageCount();
    ports().clock = nullptr;
}
BENCHMARK(BM_ReportToPdf)->Arg(500)->Arg(5000)->Iterations(2)->Unit(benchmark::kMillisecond);

}  // namespace
