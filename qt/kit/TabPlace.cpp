#include "kit/TabPlace.h"

#include <vector>

#include <QWidget>

namespace qv {

namespace {
bool isStop(const QWidget* w) { return (w->focusPolicy() & Qt::TabFocus) != 0; }
}  // namespace

void TabPlace::keep(QWidget* part) {
    QWidget* start = part->window();
    std::vector<QWidget*> stops;
    for (QWidget* w = start->nextInFocusChain(); w && w != start; w = w->nextInFocusChain())
        if (part->isAncestorOf(w) && isStop(w)) stops.push_back(w);
    // The order is set between Tab stops only.
    QWidget* previous = part->previousInFocusChain();
    while (previous && previous != start && (part->isAncestorOf(previous) || !isStop(previous)))
        previous = previous->previousInFocusChain();
    if (!previous || previous == start) return;
    for (QWidget* w : stops) {
        QWidget::setTabOrder(previous, w);
        previous = w;
    }
}

}  // namespace qv
