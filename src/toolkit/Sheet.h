#pragma once
// A property sheet: an ordered set of tools, addressed by key or by a
// position that counts from 1. Views observe it through Changed; the dialog
// logic handles Click and Change.

#include <cstdint>
#include <memory>
#include <memory_resource>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "Export.h"
#include "toolkit/Event.h"
#include "toolkit/SlotPool.h"
#include "toolkit/Tool.h"

namespace qv {

class QV_EXPORT Sheet {
public:
    explicit Sheet(std::string name, std::string title = {});
    Sheet(const Sheet&) = delete;
    Sheet& operator=(const Sheet&) = delete;

    [[nodiscard]] const std::string& name() const { return name_; }
    [[nodiscard]] const std::string& title() const { return title_; }
    void setTitle(const std::string& t);
    [[nodiscard]] bool enabled() const { return enabled_; }
    void setEnabled(bool e);

    // Adds a tool at the end. A key that stands already throws (invalid key).
    Tool& add(int32_t type, std::string key = {}, std::string caption = {});
    void removeAll();
    // Room for n more tools, so a long fill neither regrows the list nor rehashes the keys.
    void reserve(std::size_t n);
    void remove(const std::string& key);

    [[nodiscard]] int32_t count() const { return static_cast<int32_t>(tools_.size()); }
    [[nodiscard]] bool hasKey(const std::string& key) const;
    // By key: throws Failure (invalid key) when absent.
    [[nodiscard]] Tool& tool(const std::string& key) const;
    // By position from 1: throws Failure when out of range.
    [[nodiscard]] Tool& at(int32_t position) const;
    // By key, or nullptr; searches sub-items too.
    [[nodiscard]] Tool* find(const std::string& key) const;
    [[nodiscard]] Tool* lastAdded() const { return lastAdded_; }
    [[nodiscard]] const std::vector<ToolPtr>& tools() const { return tools_; }

    // The user's actions, as a view forwards them. Clicking an option entry
    // of a drop-down list chooses it: the list's text becomes its caption.
    void click(Tool& t);
    void userEdit(Tool& t, const std::string& text);
    // A double click on a tool, after the click that went before it.
    void doubleClick(Tool& t);
    // The user starts to type into a tool: false when a handler cancelled it.
    bool beginEdit(Tool& t);
    // The user has finished typing into a tool (left it or pressed Enter).
    void endEdit(Tool& t);
    // A whole edit at once, as choosing a drop-down entry is: begin, text, end.
    void userChoose(Tool& t, const std::string& text);

    Event<Tool&> Click;
    Event<Tool&> DblClick;
    Event<Tool&, const std::string&> Change;  // tool, property name ("Value")
    Event<Tool&, bool&> BeforeEdit;            // the user is about to edit a tool's text; true cancels
    Event<Tool&> AfterEdit;                    // the user's edit of a tool's text has ended
    Event<> Changed;                           // anything a view shows changed

private:
    friend class Tool;
    void raiseChange(Tool& t, const std::string& property) { Change(t, property); }
    void raiseClick(Tool& t) { Click(t); }
    void notify() { Changed(); }
    // Keys of tools and sub-items: a sheet of thousands of keywords fills
    // without walking itself on every add.
    // False when the key stands already (the index is left as it was).
    [[nodiscard]] bool indexAdd(Tool& t);
    void indexRemove(const Tool& t);
    [[nodiscard]] std::pmr::memory_resource* pool() { return &pool_; }

    // Tools, sub-items and index entries come from one pool, and the index
    // reads each key where its tool holds it (a tool never moves): a fill
    // costs a few blocks, not several allocations a tool. The pool is
    // declared first so that it goes last.
    SlotPool pool_;
    std::pmr::unordered_map<std::string_view, Tool*> index_{&pool_};

    std::string name_;
    std::string title_;
    bool enabled_ = true;
    std::vector<ToolPtr> tools_;
    Tool* lastAdded_ = nullptr;
};

}  // namespace qv
