#include "FirstPaint.h"

#include "kit/FormWindow.h"
#include "kit/QtUi.h"
#include "view/HostApp.h"
#include "view/StepRunner.h"

namespace qv::bench {

qint64 timeFirstPaint(HostApp& host, const QString& form, const QString& closeCell, int settleMs,
                      const std::function<void()>& open) {
    QElapsedTimer clock;
    FirstPaint paint(clock);
    host.ui().setWindowBuilt([&paint, form](FormWindow& w) {
        if (w.objectName() == form) w.installEventFilter(&paint);
    });
    StepRunner steps(30000);
    steps.when("painted", [&paint] { return paint.at >= 0; },
               [form, closeCell] { StepRunner::clickTool(form, closeCell); }, settleMs);
    steps.onFinished([] { StepRunner::closeAll(); });
    steps.start();
    clock.start();
    open();
    host.ui().setWindowBuilt(nullptr);
    return paint.at;
}

}  // namespace qv::bench
