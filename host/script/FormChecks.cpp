#include "script/FormChecks.h"

#include <stdexcept>

#include "script/ScriptContext.h"
#include "script/ScriptLine.h"
#include "toolkit/DateBox.h"
#include "toolkit/Form.h"
#include "toolkit/Sheet.h"
#include "toolkit/TabStrip.h"
#include "toolkit/TextEditor.h"
#include "toolkit/Tool.h"

namespace qv {

namespace {

std::string boolText(bool b) { return b ? "true" : "false"; }

std::string quoted(const std::string& s) { return "\"" + s + "\""; }

}  // namespace

namespace {
// Each check reads the dialog shown on top.
template <std::string (*Check)(Form&, const ScriptLine&)>
std::string onForm(ScriptContext& c, const ScriptLine& l) {
    return Check(c.activeForm(), l);
}
}  // namespace

void FormChecks::addTo(ScriptCommands& table) {
    table.checks.insert({{"tool", &onForm<&tool>},
                         {"absent", &onForm<&absent>},
                         {"checked", &onForm<&checked>},
                         {"editor", &onForm<&editor>},
                         {"date", &onForm<&date>},
                         {"caption", &onForm<&caption>},
                         {"tab", &onForm<&tab>},
                         {"window", &onForm<&window>}});
}

Tool& FormChecks::toolOf(Form& form, const std::string& target, Sheet** sheetOut) {
    const auto dot = target.find('.');
    if (dot == std::string::npos) throw std::invalid_argument("a tool is named sheet.KEY: " + target);
    Sheet* sheet = form.sheet(target.substr(0, dot));
    if (!sheet) throw std::invalid_argument(form.name() + " has no sheet " + target.substr(0, dot));
    Tool* tool = sheet->find(target.substr(dot + 1));
    if (!tool) throw std::invalid_argument(sheet->name() + " has no tool " + target.substr(dot + 1));
    if (sheetOut) *sheetOut = sheet;
    return *tool;
}

std::string FormChecks::tool(Form& form, const ScriptLine& l) {
    const Tool& t = toolOf(form, l.word(2));
    const auto prop = l.lowerWord(3);
    std::string actual;
    if (prop == "caption") actual = t.caption();
    else if (prop == "text") actual = t.text();
    else if (prop == "tag") actual = t.tag();
    else if (prop == "image") actual = t.image();
    else if (prop == "enabled") actual = boolText(t.enabled());
    else if (prop == "visible") actual = boolText(t.visible());
    else if (prop == "checked") actual = boolText(t.checked());
    else if (prop == "tip") actual = t.tip();
    else if (prop == "bold") actual = boolText(t.bold());
    else if (prop == "forecolor") actual = std::to_string(t.foreColor());
    else throw std::invalid_argument("unknown tool property " + prop);
    if (actual == l.word(4)) return {};
    return l.word(2) + " " + prop + " is " + quoted(actual) + ", not " + quoted(l.word(4));
}

std::string FormChecks::absent(Form& form, const ScriptLine& l) {
    const auto& target = l.word(2);
    const auto dot = target.find('.');
    if (dot == std::string::npos) throw std::invalid_argument("a tool is named sheet.KEY: " + target);
    Sheet* sheet = form.sheet(target.substr(0, dot));
    if (!sheet) throw std::invalid_argument("no sheet " + target.substr(0, dot));
    return sheet->find(target.substr(dot + 1)) ? target + " is there" : std::string();
}

std::string FormChecks::checked(Form& form, const ScriptLine& l) {
    Sheet* sheet = form.sheet(l.word(2));
    if (!sheet) throw std::invalid_argument("no sheet " + l.word(2));
    std::string caption;
    for (const auto& t : sheet->tools())
        if (t->checked()) {
            caption = t->caption();
            break;
        }
    if (caption == l.word(3)) return {};
    return l.word(2) + " has " + quoted(caption) + " checked, not " + quoted(l.word(3));
}

std::string FormChecks::editor(Form& form, const ScriptLine& l) {
    auto* ed = form.editor(l.word(2));
    if (!ed) throw std::invalid_argument("no editor " + l.word(2));
    if (ed->text() == l.word(3)) return {};
    return l.word(2) + " holds " + quoted(ed->text()) + ", not " + quoted(l.word(3));
}

std::string FormChecks::date(Form& form, const ScriptLine& l) {
    auto* box = form.dateBox(l.word(2));
    if (!box) throw std::invalid_argument("no date box " + l.word(2));
    const std::string text = box->hasDate() ? box->text() : std::string();
    if (text == l.word(3)) return {};
    return l.word(2) + " shows " + quoted(text) + ", not " + quoted(l.word(3));
}

std::string FormChecks::caption(Form& form, const ScriptLine& l) {
    const auto& caption = form.caption();
    if (caption == l.word(2)) return {};
    return "the caption is " + quoted(caption) + ", not " + quoted(l.word(2));
}

std::string FormChecks::tab(Form& form, const ScriptLine& l) {
    TabStrip* tabs = form.tabStrip(l.word(2));
    if (!tabs) throw std::invalid_argument("no tab strip " + l.word(2));
    if (std::to_string(tabs->current()) == l.word(3)) return {};
    return l.word(2) + " shows tab " + std::to_string(tabs->current()) + ", not " + l.word(3);
}

std::string FormChecks::window(Form& form, const ScriptLine& l) {
    const auto& geo = form.geometry();
    const auto prop = l.lowerWord(2);
    int32_t actual = 0;
    if (prop == "left") actual = geo.left;
    else if (prop == "top") actual = geo.top;
    else if (prop == "width") actual = geo.width;
    else if (prop == "height") actual = geo.height;
    else if (prop == "state") actual = geo.state;
    else throw std::invalid_argument("a window has left, top, width, height or state");
    if (std::to_string(actual) == l.word(3)) return {};
    return "the window's " + prop + " is " + std::to_string(actual) + ", not " + l.word(3);
}

}  // namespace qv
