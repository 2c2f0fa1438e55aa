#include "script/InputCommands.h"

#include <map>
#include <optional>
#include <stdexcept>

#include "script/FormChecks.h"
#include "script/ScriptContext.h"
#include "script/ScriptLine.h"
#include "script/SessionCommands.h"
#include "toolkit/DateBox.h"
#include "toolkit/Form.h"
#include "toolkit/ScriptedUi.h"
#include "toolkit/Sheet.h"
#include "toolkit/Splitter.h"
#include "toolkit/TextEditor.h"
#include "values/types/Convert.h"

namespace qv {

namespace {

const std::map<std::string, int32_t>& answerWords() {
    static const std::map<std::string, int32_t> words{{"ok", vbOK},       {"cancel", vbCancel}, {"abort", vbAbort},
                                                      {"retry", vbRetry}, {"ignore", vbIgnore}, {"yes", vbYes},
                                                      {"no", vbNo}};
    return words;
}

const std::map<std::string, int32_t>& keyWords() {
    static const std::map<std::string, int32_t> words{
        {"enter", vbKeyReturn}, {"return", vbKeyReturn}, {"escape", vbKeyEscape}, {"esc", vbKeyEscape}, {"f1", vbKeyF1}};
    return words;
}

const std::map<std::string, int32_t>& windowStates() {
    static const std::map<std::string, int32_t> words{
        {"normal", vbNormal}, {"minimized", vbMinimized}, {"maximized", vbMaximized}};
    return words;
}

int32_t number(const ScriptLine& l, std::size_t i) { return static_cast<int32_t>(toLong(l.word(i))); }

}  // namespace

void InputCommands::addTo(ScriptCommands& table) {
    table.commands.insert({{"type", &type},
                           {"click", &click},
                           {"key", &key},
                           {"close", &close},
                           {"answer", &answer},
                           {"resize", &resize},
                           {"drag", &drag}});
}

void InputCommands::type(ScriptContext& c, const ScriptLine& l) {
    Form& form = c.activeForm();
    const auto& target = l.word(1);
    const auto text = l.word(2);
    if (auto* ed = form.editor(target)) {
        ed->userEdit(text);
    } else if (auto* box = form.dateBox(target)) {
        const auto serial = text.empty() ? std::optional<double>(1.0) : SessionCommands::scriptDate(text);
        if (!serial) throw std::invalid_argument("not a date: " + text);
        box->userSetValue(*serial);
    } else {
        // As the user types into a tool and leaves it; a tool that refuses
        // the edit keeps its text.
        Sheet* sheet = nullptr;
        Tool& tool = FormChecks::toolOf(form, target, &sheet);
        if (!sheet->beginEdit(tool)) {
            c.out() << "note: " << target << " takes no typing\n";
            return;
        }
        sheet->userEdit(tool, text);
        sheet->endEdit(tool);
    }
}

void InputCommands::click(ScriptContext& c, const ScriptLine& l) {
    Sheet* sheet = nullptr;
    Tool& tool = FormChecks::toolOf(c.activeForm(), l.word(1), &sheet);
    sheet->click(tool);
}

void InputCommands::key(ScriptContext& c, const ScriptLine& l) {
    auto it = keyWords().find(l.lowerWord(1));
    const int32_t code = it != keyWords().end() ? it->second : number(l, 1);
    c.activeForm().keyDown(code, 0);
}

void InputCommands::close(ScriptContext& c, const ScriptLine&) { c.activeForm().requestClose(); }

void InputCommands::answer(ScriptContext& c, const ScriptLine& l) {
    auto it = answerWords().find(l.lowerWord(1));
    if (it == answerWords().end()) throw std::invalid_argument("answer yes, no, ok, cancel, retry, abort or ignore");
    c.ui().queueAnswer(it->second);
}

void InputCommands::resize(ScriptContext& c, const ScriptLine& l) {
    Form::Geometry geo;
    geo.left = number(l, 1);
    geo.top = number(l, 2);
    geo.width = number(l, 3);
    geo.height = number(l, 4);
    if (l.words.size() > 5) {
        auto it = windowStates().find(l.lowerWord(5));
        if (it == windowStates().end()) throw std::invalid_argument("a window is normal, minimized or maximized");
        geo.state = it->second;
    }
    c.activeForm().userResized(geo);
}

void InputCommands::drag(ScriptContext& c, const ScriptLine& l) {
    Splitter* split = c.activeForm().splitter(l.word(1));
    if (!split) throw std::invalid_argument("no splitter " + l.word(1));
    split->setPaneHeight(number(l, 2), number(l, 3));
    split->userEndDrag();
}

}  // namespace qv
