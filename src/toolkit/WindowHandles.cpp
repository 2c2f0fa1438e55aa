#include "toolkit/WindowHandles.h"

#include <map>
#include <memory>

#include "toolkit/Form.h"

namespace qv {

namespace {
struct Table {
    std::map<int32_t, std::weak_ptr<const Form>> byHandle;
    int32_t next = 0x10010;
};

Table& table() {
    static Table t;
    return t;
}
}  // namespace

int32_t WindowHandles::handleOf(const Form& form) {
    auto& t = table();
    for (auto it = t.byHandle.begin(); it != t.byHandle.end();) {
        const auto f = it->second.lock();
        if (!f) {
            it = t.byHandle.erase(it);
            continue;
        }
        if (f.get() == &form) return it->first;
        ++it;
    }
    auto self = form.weak_from_this();
    if (self.expired()) return 0;
    t.next += 4;  // handles of the platform are multiples of four
    t.byHandle[t.next] = self;
    return t.next;
}

bool WindowHandles::isWindow(int32_t handle) {
    const auto& m = table().byHandle;
    const auto it = m.find(handle);
    if (it == m.end()) return false;
    const auto f = it->second.lock();
    return f && f->loaded();
}

}  // namespace qv
