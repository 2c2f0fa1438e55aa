#include "kit/GenericFormView.h"

#include <QVBoxLayout>

#include "kit/SheetWidget.h"
#include "toolkit/Form.h"

namespace qv {

GenericFormView::GenericFormView(Form& form, QWidget* parent) : FormView(form, parent) {
    setObjectName(QString::fromStdString(form.name()) + ".view");
    auto* column = new QVBoxLayout(this);
    Sheet* actions = nullptr;
    for (const auto& [name, sheet] : form.sheets()) {
        if (name == "smtActions") actions = sheet;
        else column->addWidget(new SheetWidget(*sheet, SheetWidget::Style::List, this), 1);
    }
    if (actions) column->addWidget(new SheetWidget(*actions, SheetWidget::Style::Toolbar, this));
}

}  // namespace qv
