#include "AppointmentView.h"

#include <utility>

#include <QTimer>
#include <QVBoxLayout>

#include "kit/PaneBuilder.h"
#include "kit/SplitterView.h"
#include "kit/TabStripView.h"
#include "toolkit/Form.h"
#include "toolkit/TabStrip.h"

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
    waiting_ = {[f](QWidget* parent) { return PaneBuilder(*f, parent).editorPane("lblCk", "spellCK", "smtCKActions"); },
                [f](QWidget* parent) { return PaneBuilder(*f, parent).editorPane("lblNotes", "SpellNotes"); },
                [f](QWidget* parent) { return PaneBuilder(*f, parent).sheet("smtABOUT"); }};
    for (std::size_t i = 0; i < waiting_.size(); ++i) {
        auto* holder = new QWidget(tabs);
        (new QVBoxLayout(holder))->setContentsMargins(0, 0, 0, 0);
        panels_.push_back(holder);
        tabs->addPanel(holder);
    }
    buildPanel(strip->current());
    // A tab the dialog brings forward has its panel at once.
    tabsChanged_ = EventLink(strip->Changed, [this, strip] { buildPanel(strip->current()); });
    QTimer::singleShot(kIdleDelayMs, this, [this] {
        for (int t = 0; t < static_cast<int>(panels_.size()); ++t) buildPanel(t);
    });
    return tabs;
}

void AppointmentView::buildPanel(int tab) {
    if (tab < 0 || tab >= static_cast<int>(waiting_.size()) || !waiting_[static_cast<std::size_t>(tab)]) return;
    QWidget* holder = panels_[static_cast<std::size_t>(tab)];
    auto make = std::exchange(waiting_[static_cast<std::size_t>(tab)], nullptr);
    holder->layout()->addWidget(make(holder));
}

}  // namespace qv
