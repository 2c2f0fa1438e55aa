#pragma once
// A tiny signal: handlers are called in the order they were connected.

#include <cstddef>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

#include "Export.h"

namespace qv {

template <typename... Args>
class QV_EXPORT Event {
public:
    using Handler = std::function<void(Args...)>;

    // Returns an id that disconnect() takes.
    std::size_t connect(Handler h) {
        handlers_->push_back({++lastId_, std::move(h)});
        return lastId_;
    }
    void disconnect(std::size_t id) {
        for (auto& slot : *handlers_)
            if (slot.id == id) slot.fn = nullptr;
    }
    void disconnectAll() { handlers_->clear(); }

    // Raising is safe while handlers connect or disconnect: it walks a copy.
    void operator()(Args... args) const {
        // A sheet raises on every tool it adds, mostly to nobody.
        if (handlers_->empty()) return;
        auto keep = handlers_;
        const auto snapshot = *keep;
        for (const auto& slot : snapshot)
            if (slot.fn) slot.fn(args...);
    }
    [[nodiscard]] bool empty() const {
        for (const auto& slot : *handlers_)
            if (slot.fn) return false;
        return true;
    }

private:
    struct Slot {
        std::size_t id;
        Handler fn;
    };
    std::shared_ptr<std::vector<Slot>> handlers_ = std::make_shared<std::vector<Slot>>();
    std::size_t lastId_ = 0;
};

}  // namespace qv
