#include "kit/TabPlace.h"

#include <vector>

#include <QWidget>

namespace qv {

void TabPlace::keep(QWidget* part) {
    QWidget* start = part->window();
    std::vector<QWidget*> stops;
    for (QWidget* w = start->nextInFocusChain(); w && w != start; w = w->nextInFocusChain())
        if (part->isAncestorOf(w) && (w->focusPolicy() & Qt::TabFocus)) stops.push_back(w);
    if (stops.empty()) return;
    // The part's own place in the chain is where its stops go: the order is
    // set between Tab stops only, so the part is one while it is set.
    const Qt::FocusPolicy policy = part->focusPolicy();
    part->setFocusPolicy(Qt::TabFocus);
    QWidget* previous = part;
    for (QWidget* w : stops) {
        QWidget::setTabOrder(previous, w);
        previous = w;
    }
    part->setFocusPolicy(policy);
}

}  // namespace qv
