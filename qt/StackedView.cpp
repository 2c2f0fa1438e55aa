#include "StackedView.h"

#include <QVBoxLayout>

#include "kit/PaneBuilder.h"
#include "toolkit/Form.h"

namespace qv {

StackedView::StackedView(Form& form, Recipe recipe, QWidget* parent) : FormView(form, parent), recipe_(std::move(recipe)) {
    setObjectName(QString::fromStdString(form.name()) + ".view");
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(6, 6, 6, 6);
    column->setSpacing(4);
    for (const Part& part : recipe_.parts) column->addWidget(build(part), part.stretch);
}

QWidget* StackedView::build(const Part& part) {
    PaneBuilder make(form(), this);
    switch (part.piece) {
    case Piece::Label: return make.label(part.name);
    case Piece::Sheet: return make.sheet(part.name);
    case Piece::Toolbar: return make.sheet(part.name, SheetWidget::Style::Toolbar);
    case Piece::Editor: return make.editor(part.name);
    case Piece::DateBox: return make.dateBox(part.name);
    }
    return nullptr;
}

}  // namespace qv
