#include "kit/LabelView.h"

#include "toolkit/Label.h"

namespace qv {

LabelView::LabelView(Label& model, QWidget* parent) : QLabel(parent), model_(model) {
    setObjectName(QString::fromStdString(model.name()));
    setTextFormat(Qt::PlainText);
    changed_ = EventLink(model.Changed, [this] { followModel(); });
    followModel();
}

void LabelView::followModel() {
    setText(QString::fromStdString(model_.caption()));
    setVisible(model_.visible());
    switch (model_.alignment()) {
    case Label::AlignRight: setAlignment(Qt::AlignRight | Qt::AlignVCenter); break;
    case Label::AlignCenter: setAlignment(Qt::AlignCenter); break;
    default: setAlignment(Qt::AlignLeft | Qt::AlignVCenter); break;
    }
}

}  // namespace qv
