#include "kit/FormView.h"

#include "kit/Twips.h"

namespace qv {

FormView::FormView(Form& form, QWidget* parent) : QWidget(parent), form_(form) {}

QSize FormView::minimumSizeHint() const {
    const QSize twips = minimumTwips();
    const QSize own = twips.isEmpty() ? QSize(0, 0) : Twips::toPixels(twips, this);
    return QWidget::minimumSizeHint().expandedTo(own);
}

}  // namespace qv
