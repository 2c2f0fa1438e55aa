#include "AppointmentView.h"

#include <QVBoxLayout>

#include "kit/PaneBuilder.h"
#include "kit/SplitterView.h"
#include "kit/TabSheetView.h"
#include "toolkit/Form.h"
#include "toolkit/Splitter.h"

namespace qv {

namespace {
// The description over the tabs; the times over the completed box; the
// action bar under both.
const std::vector<std::vector<int>> kColumns{{0, 2}, {1, 3}};
const std::vector<int> kFooter{4};
}  // namespace

AppointmentView::AppointmentView(Form& form, QWidget* parent) : FormView(form, parent) {
    setObjectName("frmTAS2.view");
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(4, 4, 4, 4);
    Splitter* model = form.splitter("splitTAS");
    if (!model) return;
    splitter_ = new SplitterView(*model, kColumns, kFooter, this);
    for (int i = 0; i < model->paneCount(); ++i) splitter_->setPaneWidget(i, buildPane(i));
    if (auto* columns = qobject_cast<QSplitter*>(splitter_->widget(0))) {
        columns->setStretchFactor(0, 3);
        columns->setStretchFactor(1, 2);
    }
    column->addWidget(splitter_, 1);
}

QWidget* AppointmentView::buildPane(int index) {
    PaneBuilder build(form(), this);
    switch (index) {
    case 0: return build.editorPane("lblTask", "spellTask");
    case 1: return build.sheet("smtTimes");
    case 2: return buildTabs();
    case 3: return build.sheet("smtReady");
    case 4: return build.sheet("smtActions", SheetWidget::Style::Toolbar);
    default: return new QWidget(this);
    }
}

QWidget* AppointmentView::buildTabs() {
    PaneBuilder build(form(), this);
    Sheet* strip = form().sheet("Tabs1");
    if (!strip) return build.sheet("smtABOUT");
    auto* tabs = new TabSheetView(*strip, this);
    Form* f = &form();
    tabs->addPage([f](QWidget* parent) { return PaneBuilder(*f, parent).editorPane("lblCk", "spellCK", "smtCKActions"); });
    tabs->addPage([f](QWidget* parent) { return PaneBuilder(*f, parent).editorPane("lblNotes", "SpellNotes"); });
    tabs->addPage([f](QWidget* parent) { return PaneBuilder(*f, parent).sheet("smtABOUT"); });
    return tabs;
}

}  // namespace qv
