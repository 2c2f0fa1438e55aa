#include "ExistingTaskView.h"

#include <QTextEdit>
#include <QVBoxLayout>

#include "kit/GridView.h"
#include "kit/PaneBuilder.h"
#include "kit/SplitterView.h"
#include "kit/TabStripView.h"
#include "toolkit/Form.h"

namespace qv {

namespace {
const SplitterView::Arrangement kPanes{{{0, 1}, {2, 3}, {4, 5, 6}}, {7}, {3, 6, 3}};
}  // namespace

ExistingTaskView::ExistingTaskView(Form& form, QWidget* parent) : FormView(form, parent) {
    setObjectName("frmExistingTask.view");
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(4, 4, 4, 4);
    splitter_ = SplitterView::addTo(
        *column, form, "splitTask", kPanes, [this](int i) { return buildPane(i); }, this);
}

QWidget* ExistingTaskView::buildPane(int index) {
    PaneBuilder build(form(), this);
    switch (index) {
    case 0: return build.sheet("smtABOUT");
    case 1: return build.editorPane("lblNotes", "SpellNotes");
    case 2: return build.editorPane("lblTask", "spellTask", "smtReady");
    case 3: return buildTabs();
    case 5: return build.sheet("smtTimes");
    case 6: return build.sheet("smtKeywords");
    case 7: return build.sheet("smtActions", SheetWidget::Style::Toolbar);
    default: return new QWidget(this);
    }
}

QWidget* ExistingTaskView::buildTabs() {
    TabStrip* strip = form().tabStrip("Tabs1");
    if (!strip) return buildSchedule(this);
    tabs_ = new TabStripView(*strip, this);
    Form* f = &form();
    tabs_->addPanel([f](QWidget* holder) { return PaneBuilder(*f, holder).editorPane("lblCk", "spellCK", "smtCKActions"); });
    tabs_->addPanel([this](QWidget* holder) { return buildSchedule(holder); });
    return tabs_;
}

QWidget* ExistingTaskView::buildSchedule(QWidget* parent) {
    auto* panel = new QWidget(parent);
    panel->setObjectName("paneTab1");
    auto* column = new QVBoxLayout(panel);
    column->setContentsMargins(2, 2, 2, 2);
    column->setSpacing(2);
    PaneBuilder inside(form(), panel);
    column->addWidget(inside.sheet("smtSkedTimes", SheetWidget::Style::Toolbar));
    if (Grid* grid = form().grid("gridSked")) {
        schedule_ = new GridView(*grid, panel);
        column->addWidget(schedule_, 1);
    } else {
        column->addStretch(1);
    }
    column->addWidget(inside.sheet("smtSkedBtns", SheetWidget::Style::Toolbar));
    return panel;
}

}  // namespace qv
