#include "AppointmentView.h"

#include <QVBoxLayout>

#include "kit/PaneBuilder.h"
#include "kit/SplitterView.h"
#include "kit/TabStripView.h"
#include "toolkit/Form.h"

namespace qv {

namespace {
// The description over the tabs; the times over the completed box; the
// action bar under both.
const SplitterView::Arrangement kPanes{{{0, 2}, {1, 3}}, {4}, {3, 2}};
}  // namespace

AppointmentView::AppointmentView(Form& form, QWidget* parent) : FormView(form, parent) {
    setObjectName("frmTAS2.view");
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(4, 4, 4, 4);
    splitter_ = SplitterView::addTo(
        *column, form, "splitTAS", kPanes, [this](int i) { return buildPane(i); }, this);
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
    TabStrip* strip = form().tabStrip("Tabs1");
    if (!strip) return PaneBuilder(form(), this).sheet("smtABOUT");
    auto* tabs = new TabStripView(*strip, this);
    Form* f = &form();
    tabs->addPanel([f](QWidget* holder) { return PaneBuilder(*f, holder).editorPane("lblCk", "spellCK", "smtCKActions"); });
    tabs->addPanel([f](QWidget* holder) { return PaneBuilder(*f, holder).editorPane("lblNotes", "SpellNotes"); });
    tabs->addPanel([f](QWidget* holder) { return PaneBuilder(*f, holder).sheet("smtABOUT"); });
    return tabs;
}

}  // namespace qv
