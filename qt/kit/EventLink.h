#pragma once
// Holds one connection to a model Event and cuts it when the view goes, so
// a model that outlives its view never calls into a dead widget.

#include <cstddef>
#include <functional>
#include <utility>

#include "toolkit/Event.h"

namespace qv {

class EventLink {
public:
    EventLink() = default;
    template <typename... Args, typename F>
    EventLink(Event<Args...>& event, F&& fn) {
        const std::size_t id = event.connect(std::forward<F>(fn));
        cut_ = [&event, id] { event.disconnect(id); };
    }
    EventLink(EventLink&& other) noexcept : cut_(std::exchange(other.cut_, nullptr)) {}
    EventLink& operator=(EventLink&& other) noexcept {
        if (this != &other) {
            reset();
            cut_ = std::exchange(other.cut_, nullptr);
        }
        return *this;
    }
    EventLink(const EventLink&) = delete;
    EventLink& operator=(const EventLink&) = delete;
    ~EventLink() { reset(); }

    void reset() {
        if (cut_) std::exchange(cut_, nullptr)();
    }

private:
    std::function<void()> cut_;
};

}  // namespace qv
