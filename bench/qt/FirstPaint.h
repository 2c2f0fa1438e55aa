#pragma once
// Notes the time of a window's first paint, on the clock the benchmark
// started when it asked for the window.

#include <QElapsedTimer>
#include <QEvent>
#include <QObject>

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

}  // namespace qv::bench
