#include "toolkit/Tool.h"

#include <new>

#include "toolkit/Failure.h"
#include "toolkit/Sheet.h"

namespace qv {

Tool::Tool(Sheet* sheet, Tool* parent, int32_t type, std::string key, std::string caption)
    : sheet_(sheet), parent_(parent), type_(type), key_(std::move(key)), caption_(std::move(caption)) {}

void ToolRelease::operator()(Tool* t) const noexcept {
    if (!pool) {
        delete t;
        return;
    }
    t->~Tool();
    pool->deallocate(t, sizeof(Tool), alignof(Tool));
}

ToolPtr Tool::make(std::pmr::memory_resource* pool, Sheet* sheet, Tool* parent, int32_t type, std::string key,
                   std::string caption) {
    if (!pool) return ToolPtr(new Tool(sheet, parent, type, std::move(key), std::move(caption)));
    void* place = pool->allocate(sizeof(Tool), alignof(Tool));
    try {
        return ToolPtr(new (place) Tool(sheet, parent, type, std::move(key), std::move(caption)), ToolRelease{pool});
    } catch (...) {
        pool->deallocate(place, sizeof(Tool), alignof(Tool));
        throw;
    }
}

Tool::Extras& Tool::extras() {
    if (!extras_) extras_ = std::make_unique<Extras>();
    return *extras_;
}

const std::string& Tool::noText() {
    static const std::string none;
    return none;
}

void Tool::changed() {
    if (sheet_) sheet_->notify();
}

void Tool::setCaption(const std::string& c) {
    if (caption_ == c) return;
    caption_ = c;
    changed();
}

void Tool::setText(const std::string& t) {
    if (text_ == t) return;
    text_ = t;
    changed();
    if (sheet_) sheet_->raiseChange(*this, "Value");
}

void Tool::setTip(const std::string& t) {
    extras().tip = t;
    changed();
}

void Tool::setImage(const std::string& i) {
    if (image() == i) return;
    extras().image = i;
    changed();
}

void Tool::setEnabled(bool e) {
    if (enabled_ == e) return;
    enabled_ = e;
    changed();
}

void Tool::setVisible(bool v) {
    if (visible_ == v) return;
    visible_ = v;
    changed();
}

void Tool::setBold(bool b) {
    if (bold_ == b) return;
    bold_ = b;
    changed();
}

void Tool::setForeColor(int32_t c) {
    if (foreColor_ == c) return;
    foreColor_ = c;
    changed();
}

void Tool::setHostedControl(const std::string& name) {
    extras().hosted = name;
    changed();
}

void Tool::setChecked(bool c) {
    // Only check boxes and options hold a checked state: checking the
    // separator of an empty project list leaves no project chosen.
    if (type_ != ttCheck && type_ != ttOption) return;
    if (c && type_ == ttOption && sheet_) {
        // Options are exclusive among their siblings.
        const auto& siblings = parent_ ? parent_->items() : sheet_->tools();
        for (const auto& s : siblings)
            if (s.get() != this && s->type_ == ttOption) s->checked_ = false;
    }
    const bool was = checked_;
    checked_ = c;
    changed();
    if (was != c && sheet_) sheet_->raiseClick(*this);
}

Tool& Tool::addItem(int32_t type, std::string key, std::string caption) {
    if (!sheet_ && !key.empty() && item(key)) throw Failure(35602, "Key is not unique in collection");
    ToolPtr made = make(sheet_ ? sheet_->pool() : nullptr, sheet_, this, type, std::move(key), std::move(caption));
    // The sheet's index holds every key of its tools and items: one look-up
    // claims the key, and a list of hundreds fills without walking itself.
    if (sheet_ && !sheet_->indexAdd(*made)) throw Failure(35602, "Key is not unique in collection");
    try {
        items_.push_back(std::move(made));
    } catch (...) {
        if (sheet_) sheet_->indexRemove(*made);
        throw;
    }
    changed();
    return *items_.back();
}

void Tool::clearItems() {
    if (sheet_)
        for (const auto& i : items_) sheet_->indexRemove(*i);
    items_.clear();
    changed();
}

Tool* Tool::item(const std::string& key) const {
    for (const auto& i : items_)
        if (i->key_ == key) return i.get();
    return nullptr;
}

}  // namespace qv
