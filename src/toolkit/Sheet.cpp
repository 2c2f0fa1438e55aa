#include "toolkit/Sheet.h"

#include "toolkit/Failure.h"

namespace qv {

Sheet::Sheet(std::string name, std::string title) : name_(std::move(name)), title_(std::move(title)) {}

void Sheet::setTitle(const std::string& t) {
    title_ = t;
    notify();
}

void Sheet::setEnabled(bool e) {
    enabled_ = e;
    notify();
}

Tool& Sheet::add(int32_t type, std::string key, std::string caption) {
    ToolPtr made = Tool::make(&pool_, this, nullptr, type, std::move(key), std::move(caption));
    // One look-up claims the key: a sheet of thousands fills at one hash a tool.
    if (!indexAdd(*made)) throw Failure(35602, "Key is not unique in collection");
    try {
        tools_.push_back(std::move(made));
    } catch (...) {
        indexRemove(*made);
        throw;
    }
    lastAdded_ = tools_.back().get();
    notify();
    return *lastAdded_;
}

void Sheet::reserve(std::size_t n) {
    tools_.reserve(tools_.size() + n);
    index_.reserve(index_.size() + n);
}

void Sheet::removeAll() {
    index_.clear();
    tools_.clear();
    lastAdded_ = nullptr;
    notify();
}

void Sheet::remove(const std::string& key) {
    for (auto it = tools_.begin(); it != tools_.end(); ++it) {
        if ((*it)->key() == key) {
            if (lastAdded_ == it->get()) lastAdded_ = nullptr;
            indexRemove(**it);
            tools_.erase(it);
            notify();
            return;
        }
    }
    throw Failure(35601, "Element not found");
}

bool Sheet::hasKey(const std::string& key) const { return !key.empty() && find(key) != nullptr; }

Tool& Sheet::tool(const std::string& key) const {
    if (Tool* t = key.empty() ? nullptr : find(key)) return *t;
    throw Failure(35601, "Element not found: " + key);
}

Tool& Sheet::at(int32_t position) const {
    if (position < 1 || position > count()) throw Failure(35600, "Index out of bounds");
    return *tools_[static_cast<size_t>(position - 1)];
}

Tool* Sheet::find(const std::string& key) const {
    auto it = index_.find(key);
    return it == index_.end() ? nullptr : it->second;
}

bool Sheet::indexAdd(Tool& t) { return t.key().empty() || index_.try_emplace(t.key(), &t).second; }

void Sheet::indexRemove(const Tool& t) {
    for (const auto& sub : t.items()) indexRemove(*sub);
    auto it = index_.find(t.key());
    if (it != index_.end() && it->second == &t) index_.erase(it);
}

void Sheet::click(Tool& t) {
    if (!enabled_ || !t.enabled()) return;
    // Choosing an entry of a drop-down list puts its caption in the list.
    if (t.type() == ttOption && t.parent() && t.parent()->type() != ttOption) {
        userChoose(*t.parent(), t.caption());
        return;
    }
    if (t.type() == ttOption) {
        // A click on the chosen option still reaches the handlers.
        if (t.checked()) Click(t);
        else t.setChecked(true);
        return;
    }
    if (t.type() == ttCheck) {
        t.setChecked(!t.checked());
        return;
    }
    Click(t);
}

void Sheet::doubleClick(Tool& t) {
    if (!enabled_ || !t.enabled()) return;
    DblClick(t);
}

bool Sheet::beginEdit(Tool& t) {
    if (!enabled_ || !t.enabled()) return false;
    bool cancel = false;
    BeforeEdit(t, cancel);
    return !cancel;
}

void Sheet::endEdit(Tool& t) {
    if (enabled_ && t.enabled()) AfterEdit(t);
}

void Sheet::userChoose(Tool& t, const std::string& text) {
    if (!beginEdit(t)) {
        notify();  // a view shows the text it had again
        return;
    }
    userEdit(t, text);
    endEdit(t);
}

void Sheet::userEdit(Tool& t, const std::string& text) {
    if (!enabled_ || !t.enabled()) return;
    t.setText(text);
}

}  // namespace qv

