#include "PaintProbe.h"

#include <benchmark/benchmark.h>
#include <unistd.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QTimer>
#include <fstream>

#include "installer/SampleData.h"
#include "installer/StoreInstaller.h"
#include "kit/FormWindow.h"
#include "kit/QtUi.h"
#include "kit/SheetWidget.h"
#include "kit/TabStripView.h"
#include "session/globals/SessionGlobals.h"
#include "store/ADOCode.h"
#include "view/HostApp.h"
#include "view/StepRunner.h"

// Under callgrind (--instr-atstart=no), only the open up to the first paint
// is counted; elsewhere these are no-ops.
#if __has_include(<valgrind/callgrind.h>)
#include <valgrind/callgrind.h>
#define QV_COUNT_START() CALLGRIND_START_INSTRUMENTATION
#define QV_COUNT_STOP() CALLGRIND_STOP_INSTRUMENTATION
#else
#define QV_COUNT_START()
#define QV_COUNT_STOP()
#endif

namespace qv {

namespace {

// Notes the time of a window's first paint.
class FirstPaint : public QObject {
public:
    explicit FirstPaint(QElapsedTimer& clock) : clock_(clock) {}
    qint64 at = -1;

protected:
    bool eventFilter(QObject* watched, QEvent* e) override {
        if (e->type() == QEvent::Paint && at < 0) {
            at = clock_.nsecsElapsed();
            QV_COUNT_STOP();
        }
        return QObject::eventFilter(watched, e);
    }

private:
    QElapsedTimer& clock_;
};

// Every tab's page is built and every sheet of the window has a cell for
// each of its tools.
bool complete(QWidget* window) {
    for (TabStripView* t : window->findChildren<TabStripView*>(Qt::FindChildrenRecursively))
        if (!t->complete()) return false;
    for (SheetWidget* w : window->findChildren<SheetWidget*>(Qt::FindChildrenRecursively))
        if (!w->complete()) return false;
    return true;
}

}  // namespace

double PaintProbe::residentMb() {
    std::ifstream statm("/proc/self/statm");
    long pages = 0, resident = 0;
    statm >> pages >> resident;
    return static_cast<double>(resident) * static_cast<double>(sysconf(_SC_PAGESIZE)) / (1024.0 * 1024.0);
}

PaintTimes PaintProbe::measure(HostApp& host, const QString& form, const QString& closeTool,
                               const std::function<void()>& open) {
    PaintTimes t;
    QElapsedTimer clock;
    FirstPaint paint(clock);
    host.ui().setWindowBuilt([&paint, form](FormWindow& w) {
        if (w.objectName() == form) w.installEventFilter(&paint);
    });
    // Polled on every pass of the event loop, inside the modal wait.
    QTimer poll;
    poll.setInterval(1);
    const double before = residentMb();
    QObject::connect(&poll, &QTimer::timeout, [&] {
        QWidget* w = StepRunner::formWindow(form);
        if (!w || paint.at < 0 || t.completeMs >= 0 || !complete(w)) return;
        t.completeMs = static_cast<double>(clock.nsecsElapsed()) / 1e6;
        t.memoryGrowthMb = residentMb() - before;
        poll.stop();
        StepRunner::clickTool(form, closeTool);
    });
    StepRunner steps(30000);
    steps.onMessageBox([](auto&) { return 0; });
    steps.onFinished([] { StepRunner::closeAll(); });
    steps.when(
        "closed", [&] { return t.completeMs >= 0 && !StepRunner::formWindow(form); }, [] {});
    steps.start();
    poll.start();
    QV_COUNT_START();
    clock.start();
    open();
    host.ui().setWindowBuilt(nullptr);
    if (paint.at >= 0) t.firstPaintMs = static_cast<double>(paint.at) / 1e6;
    return t;
}

void PaintProbe::run(benchmark::State& state, HostApp& host, const QString& form,
                     const std::function<void()>& open) {
    double complete = 0, growth = 0, firstGrowth = -1;
    for (auto _ : state) {
        const PaintTimes t = measure(host, form, "smtActions.DONE", open);
        if (t.firstPaintMs < 0 || t.completeMs < 0) {
            state.SkipWithError("the window was never painted whole");
            break;
        }
        state.SetIterationTime(t.firstPaintMs / 1e3);
        complete += t.completeMs;
        growth += t.memoryGrowthMb;
        if (firstGrowth < 0) firstGrowth = t.memoryGrowthMb;
    }
    const double n = static_cast<double>(state.iterations());
    state.counters["complete_ms"] = n > 0 ? complete / n : 0;
    state.counters["rss_growth_MB"] = n > 0 ? growth / n : 0;
    // The first open also pays for what the toolkit loads once per process.
    state.counters["first_rss_growth_MB"] = firstGrowth < 0 ? 0 : firstGrowth;
    StepRunner::closeAll();
}

std::string PaintProbe::sampleStore(const std::string& folder, const SampleSize& size) {
    resetGlobals();
    installStore(folder);
    installSettingsFile(folder);
    const std::string store = pathInFolder(folder, kStoreFileName);
    fillSampleStore(store, size);
    return store;
}

}  // namespace qv
