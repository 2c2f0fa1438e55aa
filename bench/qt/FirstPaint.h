#pragma once
// Notes the time of a window's first paint, on the clock the benchmark
// started when it asked for the window.

#include <functional>

#include <QElapsedTimer>
#include <QEvent>
#include <QObject>
#include <QString>

namespace qv {
class HostApp;
}

namespace qv::bench {

class FirstPaint : public QObject {
public:
    explicit FirstPaint(QElapsedTimer& clock) : clock_(clock) {}
    qint64 at = -1;

protected:
    bool eventFilter(QObject* watched, QEvent* e) override {
        if (e->type() == QEvent::Paint && at < 0) at = clock_.nsecsElapsed();
        return QObject::eventFilter(watched, e);
    }

private:
    QElapsedTimer& clock_;
};

// Runs open (which blocks while the form's window is up), notes the
// nanoseconds to the window's first paint, then clicks closeCell once the
// window has stood for settleMs. -1 when the window never painted.
qint64 timeFirstPaint(HostApp& host, const QString& form, const QString& closeCell, int settleMs,
                      const std::function<void()>& open);

}  // namespace qv::bench
