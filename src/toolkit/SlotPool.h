#pragma once
// Memory for many small objects of a few sizes that come and go together
// (the tools of a sheet and its key index): blocks are carved from large
// chunks, a freed block waits in a list of its size for the next request,
// and the chunks go back when the pool does. Larger requests go to the heap.
// Not for use from more than one thread.

#include <array>
#include <cstddef>
#include <memory_resource>

#include "Export.h"

#if defined(__has_feature)
#if __has_feature(address_sanitizer)
#define QV_HAS_ADDRESS_SANITIZER 1
#endif
#endif
#ifndef QV_HAS_ADDRESS_SANITIZER
#define QV_HAS_ADDRESS_SANITIZER 0
#endif

namespace qv {

class QV_EXPORT SlotPool : public std::pmr::memory_resource {
public:
    SlotPool() = default;
    SlotPool(const SlotPool&) = delete;
    SlotPool& operator=(const SlotPool&) = delete;

    // Blocks up to this many bytes come from the chunks.
    static constexpr std::size_t kLargestSlot = 512;

private:
    static constexpr std::size_t kGrain = alignof(std::max_align_t);
    struct FreeSlot {
        FreeSlot* next;
    };

    void* do_allocate(std::size_t bytes, std::size_t alignment) override;
    void do_deallocate(void* p, std::size_t bytes, std::size_t alignment) override;
    [[nodiscard]] bool do_is_equal(const std::pmr::memory_resource& other) const noexcept override {
        return this == &other;
    }
    // Under the address sanitizer every block is the heap's, so that a use
    // after free is still caught.
    [[nodiscard]] static bool pooled(std::size_t bytes, std::size_t alignment) {
#if defined(__SANITIZE_ADDRESS__) || QV_HAS_ADDRESS_SANITIZER
        (void)bytes;
        (void)alignment;
        return false;
#else
        return bytes <= kLargestSlot && alignment <= kGrain;
#endif
    }
    // At least one grain: a freed block holds the link to the next.
    [[nodiscard]] static std::size_t sizeClass(std::size_t bytes) { return bytes ? (bytes + kGrain - 1) / kGrain : 1; }

    std::pmr::monotonic_buffer_resource chunks_;
    std::array<FreeSlot*, kLargestSlot / kGrain + 1> free_{};
};

}  // namespace qv
