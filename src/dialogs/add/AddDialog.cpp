#include "dialogs/add/AddDialog.h"

#include "session/globals/SessionGlobals.h"
#include "store/ErrorPath.h"
#include "toolkit/HelpViewer.h"
#include "toolkit/Ports.h"
#include "toolkit/TextFill.h"
#include "toolkit/Translate.h"
#include "toolkit/Ui.h"
#include "values/types/TextCase.h"

namespace qv {

AddDialog::AddDialog(std::string name, Shape shape) : Form(std::move(name)), shape_(shape) {
    setCaption(std::string(kProgramTitle) + tr(shape_.title));
    addControl("smtAction", smtAction);
    smtAction.Click.connect([this](Tool& t) { smtAction_Click(t); });
}

bool AddDialog::SetTaskPrintSetting(const std::string& str) {
    TaskPrintSetting = str;
    return true;
}

void AddDialog::smtAction_Click(Tool& t) {
    trap(name().c_str(), "smtAction_Click", [&] {
        const std::string key = TextCase::upper(t.key());
        if (key == "HELP")
            openHelpPop();
        else if (key == shape_.addKey)
            addNew(AddTrigger::Tool);
        else if (key == shape_.closeKey && mayClose())
            unload();
    });
}

// The key is swallowed either way: nothing else sees Enter or Escape.
void AddDialog::Form_KeyDown(int32_t keyCode, int32_t /*shift*/) {
    trap(name().c_str(), "Form_KeyDown", [&] {
        if (keyCode == vbKeyReturn)
            addNew(AddTrigger::EnterKey);
        else if (keyCode == vbKeyEscape)
            unload();
    });
}

void AddDialog::addNew(AddTrigger how) {
    if (!validateNew() || !createNew()) return;
    info(fill(tr(shape_.created), {addedName()}));
    afterAdd(how);
}

void AddDialog::openHelpPop() {
    if (ports().help) ports().help->openHelpPop(shape_.helpTopic, TaskPrintSetting);
}

void AddDialog::info(const std::string& text) {
    ui().msgBox(text, vbOKOnly + vbInformation, kProgramTitle);
}

std::string AddDialog::trimSpaces(const std::string& text) {
    const auto first = text.find_first_not_of(' ');
    if (first == std::string::npos) return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

}  // namespace qv
