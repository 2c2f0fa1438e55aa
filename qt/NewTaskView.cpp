#include "NewTaskView.h"

#include <QVBoxLayout>

#include "PicturePane.h"
#include "kit/PaneBuilder.h"
#include "kit/SplitterView.h"
#include "toolkit/Form.h"

namespace qv {

namespace {
// Status and Project; Task, Checklist and Notes; Keywords; Time Needed,
// Importance, Difficulty and the picture; the tool bar under them all.
const SplitterView::Arrangement kPanes{{{0, 1}, {2, 3, 4}, {5}, {6, 7, 8, 9}}, {10}, {3, 5, 3, 3}};
}  // namespace

NewTaskView::NewTaskView(Form& form, QWidget* parent) : FormView(form, parent) {
    setObjectName("frmTask3.view");
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(4, 4, 4, 4);
    PaneBuilder build(form, this);
    QWidget* banner = build.label("lblTaskSaved");
    // The palette's highlight pair: it stands out, and reads, on any theme.
    banner->setAutoFillBackground(true);
    banner->setBackgroundRole(QPalette::Highlight);
    banner->setForegroundRole(QPalette::HighlightedText);
    banner->setContentsMargins(4, 4, 4, 4);
    QFont bold = banner->font();
    bold.setBold(true);
    banner->setFont(bold);
    column->addWidget(banner);
    splitter_ = SplitterView::addTo(
        *column, form, "splitTask", kPanes, [this](int i) { return buildPane(i); }, this);
}

QWidget* NewTaskView::buildPane(int index) {
    PaneBuilder build(form(), this);
    switch (index) {
    case 0: return build.sheet("smtOther");
    case 1: return build.sheet("smtProj");
    case 2: return build.editorPane("lblTask", "spellTask", "smtReady");
    case 3: return build.editorPane("lblCk", "spellCK", "smtCKActions");
    case 4: return build.editorPane("lblNotes", "SpellNotes");
    case 5: return build.sheet("smtKeywords");
    case 6: return build.sheet("smtTimeNeeded");
    case 7: return build.sheet("smtImp");
    case 8: return build.sheet("smtDiff");
    case 9: return new PicturePane(this);
    case 10: return build.sheet("smtActions", SheetWidget::Style::Toolbar);
    default: return new QWidget(this);
    }
}

}  // namespace qv
