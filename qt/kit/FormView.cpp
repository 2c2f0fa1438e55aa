#include "kit/FormView.h"

#include <QShowEvent>

#include "kit/Twips.h"

namespace qv {

FormView::FormView(Form& form, QWidget* parent) : QWidget(parent), form_(form) {}

QSize FormView::minimumSizeHint() const {
    const QSize twips = minimumTwips();
    const QSize own = twips.isEmpty() ? QSize(0, 0) : Twips::toPixels(twips, this);
    return QWidget::minimumSizeHint().expandedTo(own);
}

namespace {
QWidget* takerIn(QWidget* w) {
    if (!w || w->focusPolicy() & Qt::TabFocus) return w;
    for (QWidget* child : w->findChildren<QWidget*>())
        if (child->focusPolicy() & Qt::TabFocus && child->isVisibleTo(w) && child->isEnabled()) return child;
    return nullptr;
}
}  // namespace

void FormView::showEvent(QShowEvent* e) {
    QWidget::showEvent(e);
    if (focused_ || firstFocus_.isEmpty()) return;
    focused_ = true;
    if (QWidget* w = takerIn(findChild<QWidget*>(firstFocus_))) w->setFocus(Qt::OtherFocusReason);
}

}  // namespace qv
