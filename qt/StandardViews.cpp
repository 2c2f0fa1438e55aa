#include "StandardViews.h"

#include "AppointmentView.h"
#include "ExistingTaskView.h"
#include "HelpView.h"
#include "NewTaskView.h"
#include "PageSetupView.h"
#include "StackedView.h"

#include <functional>
#include <map>

namespace qv {

namespace {

using P = StackedView::Piece;

StackedView::Recipe addProject() {
    return {{{P::Label, "lblCreate"}, {P::Sheet, "smtProject", 1}, {P::Label, "lblOptional"}, {P::Toolbar, "smtAction"}},
            {4800, 3000},
            {5400, 3600}};
}

StackedView::Recipe addKeyword() {
    return {{{P::Label, "lblCreate"}, {P::Sheet, "smtKeywords", 1}, {P::Toolbar, "smtAction"}}, {4800, 2600}, {5400, 3200}};
}

StackedView::Recipe checklistPicker() {
    return {{{P::Sheet, "smtList", 3}, {P::Editor, "txDesc", 1}, {P::Toolbar, "smtAction"}}, {4800, 4200}, {6000, 5400}};
}

StackedView::Recipe checklistEditor() {
    return {{{P::Sheet, "smtChecklist", 1}, {P::Editor, "spellContent", 3}, {P::Toolbar, "smtAction"}},
            {6000, 4800},
            {7800, 6600}};
}

// Where typing makes sense when each window opens.
const std::map<std::string, QString> kFirstFocus{
    {"frmTask3", "spellTask"},
    {"frmTAS2", "spellTask"},
    {"frmExistingTask", "spellTask"},
    {"frmAddProject", "smtProject.txName"},
    {"frmAddKeyword", "smtKeywords.KEYWORD"},
    {"frmPageSetup", "smtPrinting(0)"},
    {"frmCkPicker", "smtList"},
    {"frmChecklistEditor", "smtChecklist"},
};

void add(ViewFactory& f, const std::string& name, std::function<FormView*(Form&)> make) {
    const auto focus = kFirstFocus.find(name);
    const QString first = focus == kFirstFocus.end() ? QString() : focus->second;
    f.add(name, [make = std::move(make), first](Form& form) {
        FormView* view = make(form);
        view->setFirstFocus(first);
        return view;
    });
}

void addStacked(ViewFactory& f, const std::string& name, StackedView::Recipe (*recipe)()) {
    add(f, name, [recipe](Form& form) -> FormView* { return new StackedView(form, recipe()); });
}

}  // namespace

ViewFactory StandardViews::make() {
    ViewFactory f;
    add(f, "frmTask3", [](Form& form) -> FormView* { return new NewTaskView(form); });
    add(f, "frmTAS2", [](Form& form) -> FormView* { return new AppointmentView(form); });
    add(f, "frmExistingTask", [](Form& form) -> FormView* { return new ExistingTaskView(form); });
    add(f, "frmPageSetup", [](Form& form) -> FormView* { return new PageSetupView(form); });
    addStacked(f, "frmAddProject", addProject);
    addStacked(f, "frmAddKeyword", addKeyword);
    addStacked(f, "frmCkPicker", checklistPicker);
    addStacked(f, "frmChecklistEditor", checklistEditor);
    f.add("frmPopHelp", [](Form& form) -> FormView* { return new HelpView(form); });
    return f;
}

}  // namespace qv
