#include "toolkit/SlotPool.h"

#include <new>

namespace qv {

void* SlotPool::do_allocate(std::size_t bytes, std::size_t alignment) {
    if (!pooled(bytes, alignment)) return ::operator new(bytes, std::align_val_t(alignment));
    const std::size_t c = sizeClass(bytes);
    if (FreeSlot* slot = free_[c]) {
        free_[c] = slot->next;
        return slot;
    }
    return chunks_.allocate(c * kGrain, kGrain);
}

void SlotPool::do_deallocate(void* p, std::size_t bytes, std::size_t alignment) {
    if (!pooled(bytes, alignment)) {
        ::operator delete(p, std::align_val_t(alignment));  // unsized: not every compiler offers the sized one
        return;
    }
    const std::size_t c = sizeClass(bytes);
    free_[c] = ::new (p) FreeSlot{free_[c]};
}

}  // namespace qv
