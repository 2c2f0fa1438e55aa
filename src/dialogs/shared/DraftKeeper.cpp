#include "dialogs/shared/DraftKeeper.h"

#include <algorithm>
#include <charconv>
#include <filesystem>
#include <unordered_map>

#include "session/globals/SessionGlobals.h"
#include "store/ErrorPath.h"
#include "toolkit/Clock.h"
#include "toolkit/DateBox.h"
#include "toolkit/Form.h"
#include "toolkit/Ports.h"
#include "toolkit/Sheet.h"
#include "toolkit/TextEditor.h"
#include "toolkit/TextFill.h"
#include "toolkit/Translate.h"
#include "toolkit/Ui.h"
#include "values/types/DateTimeFormatter.h"

namespace qv {

namespace {

// Field names: the kind, then the control (and the tool's key).
constexpr const char* kPick = "pick:";
constexpr const char* kText = "text:";
constexpr const char* kDate = "date:";
constexpr const char* kEditor = "editor:";

bool startsWith(const std::string& s, const char* prefix) {
    return s.rfind(prefix, 0) == 0;
}

std::string serialText(double v) {
    char buf[32];
    const auto r = std::to_chars(buf, buf + sizeof buf, v);
    return std::string(buf, r.ptr);
}

bool isPick(const Tool& t) {
    return t.type() == ttCheck || t.type() == ttOption;
}

// The store as the session found it: a file by its absolute path, a server by its address.
std::string storeIdentity() {
    const std::string& where = g().DBLocation;
    if (where.empty() || where.find("://") != std::string::npos) return where;
    std::error_code ec;
    const auto absolute = std::filesystem::absolute(where, ec);
    return ec ? where : absolute.lexically_normal().string();
}

// "sheet.KEY" of a field after its prefix.
std::pair<std::string, std::string> sheetAndKey(const std::string& rest) {
    const auto dot = rest.find('.');
    if (dot == std::string::npos) return {rest, {}};
    return {rest.substr(0, dot), rest.substr(dot + 1)};
}

}  // namespace

DraftKeeper::DraftKeeper(Form& form, const char* module, std::string what, DraftInputs inputs)
    : form_(form), module_(module), what_(std::move(what)), inputs_(std::move(inputs)), delay_("draftTimer") {
    delay_.setInterval(kDelayMs);
    delay_.Tick.connect([this] {
        delay_.setEnabled(false);
        writeNow();
    });
    watch();
}

DraftKeeper::~DraftKeeper() {
    for (auto& off : unwatch_) off();
}

// Every way the model tells of a change to an input reaches userChanged;
// before the keeper is armed (the dialog filling itself) they are let pass.
// A tool the program alone writes (a stopwatch reading) is no input.
void DraftKeeper::watch() {
    std::vector<Sheet*> sheets = inputs_.picks;
    for (auto& t : inputs_.texts)
        if (std::find(sheets.begin(), sheets.end(), t.sheet) == sheets.end()) sheets.push_back(t.sheet);
    for (Sheet* s : sheets) {
        auto changed = [this, s](Tool& t) {
            if (isInput(*s, t)) userChanged();
        };
        const auto click = s->Click.connect(changed);
        const auto change = s->Change.connect([changed](Tool& t, const std::string&) { changed(t); });
        unwatch_.push_back([s, click, change] {
            s->Click.disconnect(click);
            s->Change.disconnect(change);
        });
    }
    for (DateBox* d : inputs_.dates) {
        const auto id = d->Change.connect([this] { userChanged(); });
        unwatch_.push_back([d, id] { d->Change.disconnect(id); });
    }
    for (TextEditor* e : inputs_.editors) {
        const auto id = e->Change.connect([this] { userChanged(); });
        unwatch_.push_back([e, id] { e->Change.disconnect(id); });
    }
    const auto shown = form_.Changed.connect([this] { formChanged(); });
    const auto gone = form_.Unloaded.connect([this] { closed(); });
    unwatch_.push_back([this, shown, gone] {
        form_.Changed.disconnect(shown);
        form_.Unloaded.disconnect(gone);
    });
}

bool DraftKeeper::isInput(const Sheet& sheet, const Tool& tool) const {
    if (isPick(tool) && !tool.parent() &&
        std::find(inputs_.picks.begin(), inputs_.picks.end(), &sheet) != inputs_.picks.end())
        return true;
    const Tool& named = tool.parent() ? *tool.parent() : tool;
    for (const auto& group : inputs_.texts)
        if (group.sheet == &sheet &&
            std::find(group.keys.begin(), group.keys.end(), named.key()) != group.keys.end())
            return true;
    return false;
}

void DraftKeeper::offerWhenShown(std::function<std::pair<int32_t, std::string>()> taskKey) {
    offerOnShow_ = std::move(taskKey);
}

DraftKey DraftKeeper::keyOf(int32_t mode, const std::string& taskKey) {
    return {storeIdentity(), mode, taskKey};
}

void DraftKeeper::offerStoredRowWhenShown() {
    offerWhenShown([] { return std::pair<int32_t, std::string>(g().TaskMode, g().CurrentTaskGUID); });
}

void DraftKeeper::formChanged() {
    if (form_.visible() && !shown_) {
        shown_ = true;
        if (offerOnShow_ && !g().SettingUp) {
            const auto [mode, key] = offerOnShow_();
            offer(mode, key);
        }
    } else if (!form_.visible() && shown_) {
        closed();
    }
}

void DraftKeeper::offer(int32_t mode, const std::string& taskKey) {
    if (armed_) return;
    key_ = keyOf(mode, taskKey);
    base_ = snapshot(Picks::ticked);
    armed_ = true;
    const auto draft = DraftFile::read(key_);
    if (!draft) return;
    if (!differs(*draft)) {
        DraftFile::remove(key_);  // what it holds is what the dialog shows
        return;
    }
    if (!ask(*draft)) {
        DraftFile::remove(key_);
        return;
    }
    trap(module_, "RestoreDraft", [&] { restore(*draft); });
}

void DraftKeeper::saved() {
    if (!armed_) return;
    delay_.setEnabled(false);
    DraftFile::remove(key_);
    base_ = snapshot(Picks::ticked);
}

// At most a moment after the first change not yet written: steady typing
// does not put the write off.
void DraftKeeper::userChanged() {
    if (!armed_ || restoring_) return;
    delay_.setEnabled(true);
}

void DraftKeeper::writeNow() {
    if (!armed_) return;
    auto now = changes();
    if (now.empty()) {
        DraftFile::remove(key_);
        return;
    }
    const double at = ports().clock ? ports().clock->now() : 0;
    DraftFile::write(Draft{key_, at, std::move(now)});
}

// A close on the error path keeps the draft, with the last changes too;
// every other close (a save, a cancel, the close box) ends it.
void DraftKeeper::closed() {
    if (!armed_) return;
    delay_.setEnabled(false);
    if (errorPathTaken()) {
        if (!restoring_) writeNow();
    } else {
        DraftFile::remove(key_);
    }
    armed_ = false;
}

// A pick left out reads as not ticked, so the base of a sheet of thousands
// of ticks holds only the few that are.
DraftKeeper::Values DraftKeeper::snapshot(Picks which) const {
    Values v;
    for (TextEditor* e : inputs_.editors) v.emplace_back(kEditor + e->name(), e->text());
    for (Sheet* s : inputs_.picks) {
        const std::string sheetField = kPick + s->name() + ".";
        if (which == Picks::all) v.reserve(v.size() + s->tools().size());
        for (const auto& t : s->tools()) {
            if (!isPick(*t) || t->key().empty()) continue;
            if (which == Picks::ticked && !t->checked()) continue;
            std::string field;
            field.reserve(sheetField.size() + t->key().size());
            field.append(sheetField).append(t->key());
            v.emplace_back(std::move(field), t->checked() ? "1" : "0");
        }
    }
    for (const auto& group : inputs_.texts)
        for (const auto& key : group.keys)
            if (const Tool* t = group.sheet->find(key))
                v.emplace_back(kText + group.sheet->name() + "." + key, t->text());
    for (DateBox* d : inputs_.dates) v.emplace_back(kDate + d->name(), serialText(d->value()));
    return v;
}

// The fields that differ from the base, in the order they are restored.
std::vector<DraftChange> DraftKeeper::changes() const {
    const std::unordered_map<std::string, std::string> base(base_.begin(), base_.end());
    std::vector<DraftChange> out;
    for (const auto& [field, value] : snapshot(Picks::all)) {
        const auto it = base.find(field);
        const std::string loaded = it != base.end() ? it->second : startsWith(field, kPick) ? "0" : "";
        if (loaded != value && !(loaded.empty() && value == "0")) out.push_back({field, loaded, value});
    }
    return out;
}

bool DraftKeeper::differs(const Draft& draft) const {
    for (const auto& c : draft.changes)
        if (valueOf(c.field) != c.typed) return true;
    return false;
}

bool DraftKeeper::ask(const Draft& draft) const {
    const std::string text = fill(tr(what_.c_str()), {when(draft.savedAt)});
    return ui().msgBox(text, vbYesNo + vbQuestion, kProgramTitle) == vbYes;
}

// The date as the dialog's own date boxes write it, and the time of day.
std::string DraftKeeper::when(double serial) const {
    DateBox day;
    if (!inputs_.dates.empty()) {
        const DateBox& like = *inputs_.dates.front();
        day.setSeparator(like.separator());
        day.setDateStyle(like.dateStyle());
        day.setMonthStyle(like.monthStyle());
        day.setMonthNames(like.monthNames());
    }
    day.setValue(serial);
    try {
        return day.text() + " " + DateTimeFormatter::current().shortTime(serial);
    } catch (...) {
        return day.text();  // a serial outside the calendar
    }
}

// Twice over: a handler of one field may reset another (a status that
// clears the date done). A change whose replay takes the error path (a
// text the dialog's checker fails on) is left out of the draft kept, so
// the next open restores the rest instead of failing again.
void DraftKeeper::restore(const Draft& draft) {
    restoring_ = true;
    struct Done {
        DraftKeeper& k;
        ~Done() { k.restoring_ = false; }
    } done{*this};
    for (int pass = 0; pass < 2; ++pass) {
        for (std::size_t i = 0; i < draft.changes.size(); ++i) {
            const auto& c = draft.changes[i];
            if (!armed_ || valueOf(c.field) == c.typed) continue;
            apply(c);
            if (!errorPathTaken()) continue;
            Draft rest = draft;
            rest.changes.erase(rest.changes.begin() + static_cast<std::ptrdiff_t>(i));
            rest.changes.empty() ? DraftFile::remove(draft.key) : (void)DraftFile::write(rest);
            return;
        }
    }
}

std::string DraftKeeper::valueOf(const std::string& field) const {
    if (startsWith(field, kPick) || startsWith(field, kText)) {
        const bool pick = startsWith(field, kPick);
        const auto [sheet, key] = sheetAndKey(field.substr(std::char_traits<char>::length(kPick)));
        const Sheet* s = form_.sheet(sheet);
        const Tool* t = s ? s->find(key) : nullptr;
        if (!t) return {};
        return pick ? (t->checked() ? "1" : "0") : t->text();
    }
    if (startsWith(field, kDate)) {
        const DateBox* d = form_.dateBox(field.substr(std::char_traits<char>::length(kDate)));
        return d ? serialText(d->value()) : std::string();
    }
    if (startsWith(field, kEditor)) {
        const TextEditor* e = form_.editor(field.substr(std::char_traits<char>::length(kEditor)));
        return e ? e->text() : std::string();
    }
    return {};
}

// As the user would: a click, a pick from a list, typing into a tool, a
// date picked, text typed.
void DraftKeeper::apply(const DraftChange& c) {
    if (startsWith(c.field, kPick) || startsWith(c.field, kText)) {
        const auto [name, key] = sheetAndKey(c.field.substr(std::char_traits<char>::length(kPick)));
        Sheet* s = form_.sheet(name);
        Tool* t = s ? s->find(key) : nullptr;
        if (!t) return;
        if (startsWith(c.field, kPick)) {
            // An option is unticked by ticking another one.
            if (t->type() == ttCheck || c.typed == "1") s->click(*t);
            return;
        }
        for (const auto& item : t->items())
            if (item->caption() == c.typed) return s->click(*item);
        if (!s->beginEdit(*t)) return;
        s->userEdit(*t, c.typed);
        s->endEdit(*t);
        return;
    }
    if (startsWith(c.field, kDate)) {
        DateBox* d = form_.dateBox(c.field.substr(std::char_traits<char>::length(kDate)));
        double v = 0;
        const auto r = std::from_chars(c.typed.data(), c.typed.data() + c.typed.size(), v);
        if (d && r.ec == std::errc{}) d->userSetValue(v);
        return;
    }
    if (!startsWith(c.field, kEditor)) return;
    if (TextEditor* e = form_.editor(c.field.substr(std::char_traits<char>::length(kEditor))))
        e->userEdit(c.typed);
}

}  // namespace qv
