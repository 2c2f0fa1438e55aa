#pragma once
// Memory for the rows of a result set as read.

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory>
#include <vector>

namespace qv {

// What a stored cell holds (SQLite's own numbers, which its engine gives).
enum CellKind : uint8_t { kCellInteger = 1, kCellFloat = 2, kCellText = 3, kCellBlob = 4, kCellNull = 5 };

// One stored cell as the engine gave it; text lives in the set's RowStore.
// A zeroed cell (kind 0) reads as null.
struct Cell {
    union {
        int64_t i;
        double d;
        const char* text;
    };
    uint32_t len;
    uint8_t kind;
};

// Memory for the rows as read: blocks that never move, so that a load never
// copies again what it has read, whatever the number of rows. Blocks of the
// standard size go back to a small pool of the thread when a set lets go of
// its rows, so that the next read doesn't ask the system for fresh pages.
class RowStore {
public:
    RowStore() = default;
    RowStore(const RowStore&) = delete;
    RowStore& operator=(const RowStore&) = delete;
    ~RowStore() { clear(); }

    void clear() {
        auto& p = pool();
        for (auto& b : blocks_)
            if (b.size == kBlock && p.size() < kPoolBlocks) p.push_back(std::move(b.data));
        blocks_.clear();
        cur_ = nullptr;
        left_ = 0;
    }
    Cell* cells(size_t n) {
        auto* c = static_cast<Cell*>(take(n * sizeof(Cell), alignof(Cell)));
        std::memset(static_cast<void*>(c), 0, n * sizeof(Cell));
        return c;
    }
    const char* copy(const void* p, size_t len) {
        char* dst = static_cast<char*>(take(len, 1));
        if (len) std::memcpy(dst, p, len);
        return dst;
    }

private:
    static constexpr size_t kBlock = 256 * 1024;
    static constexpr size_t kPoolBlocks = 32;  // 8 MB kept at most

    struct Block {
        std::unique_ptr<char[]> data;
        size_t size;
    };

    static std::vector<std::unique_ptr<char[]>>& pool() {
        thread_local std::vector<std::unique_ptr<char[]>> blocks;
        return blocks;
    }

    void* take(size_t bytes, size_t align) {
        size_t pad = (align - reinterpret_cast<uintptr_t>(cur_) % align) % align;
        if (bytes + pad > left_) {
            grow(std::max(kBlock, bytes + align));
            pad = (align - reinterpret_cast<uintptr_t>(cur_) % align) % align;
        }
        char* r = cur_ + pad;
        cur_ = r + bytes;
        left_ -= bytes + pad;
        return r;
    }
    void grow(size_t size) {
        auto& p = pool();
        if (size == kBlock && !p.empty()) {
            blocks_.push_back({std::move(p.back()), size});
            p.pop_back();
        } else {
            blocks_.push_back({std::unique_ptr<char[]>(new char[size]), size});
        }
        cur_ = blocks_.back().data.get();
        left_ = size;
    }

    std::vector<Block> blocks_;
    char* cur_ = nullptr;
    size_t left_ = 0;
};

}  // namespace qv
