#pragma once
// The state of an open Recordset, shared by its reading side (Recordset.cpp)
// and its write-back (RecordWriteBack): the rows as read, the edits laid
// over them, and the current position.

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "store/FieldCodec.h"
#include "store/Recordset.h"
#include "store/RowStore.h"
#include "store/StoreBackend.h"

namespace qv {

// Assigned values of a row: they override the cells as read.
struct Edit {
    explicit Edit(size_t n)
        : vals(n),
          has(n, 0),
          dirty(n, 0),
          read(n),
          hasRead(n, 0),
          base(n),
          baseRaw(n),
          hasBase(n, 0),
          stored(n),
          storedRaw(n),
          clash(n, 0) {}
    std::vector<Value> vals;
    std::vector<uint8_t> has;    // assigned
    std::vector<uint8_t> dirty;  // assigned, differing from the value read, and not yet written
    // What this set wrote, where it stands for the cell as read: an
    // assignment is a change when it differs from this.
    std::vector<Value> read;
    std::vector<uint8_t> hasRead;
    // The value the store is known to hold where it is no longer the cell
    // as read: what this set wrote, or what it took from the store since;
    // as a value, and in the form the store holds it (for a write's check).
    std::vector<Value> base;
    std::vector<Value> baseRaw;
    std::vector<uint8_t> hasBase;
    // Another user's value of a field this set changed too (a conflict).
    std::vector<Value> stored;
    std::vector<Value> storedRaw;
    std::vector<uint8_t> clash;

    void setBase(size_t c, Value value, Value raw) {
        base[c] = std::move(value);
        baseRaw[c] = std::move(raw);
        hasBase[c] = 1;
    }
};

enum class RowState : uint8_t {
    Clean,     // as read or as written
    Modified,  // assigned fields wait to be written
    New,       // added, not yet inserted
    Deleted,   // removal waits to be written
    Gone,      // removed (written, or a new row dropped before insertion)
};

struct Row {
    int64_t rowid = 0;
    Cell* cells = nullptr;  // as read; none for an added row
    RowState state = RowState::Clean;
    std::unique_ptr<Edit> edit;
    [[nodiscard]] bool visible() const { return state != RowState::Deleted && state != RowState::Gone; }
    [[nodiscard]] bool pending() const {
        return state == RowState::New || state == RowState::Modified || state == RowState::Deleted;
    }
    [[nodiscard]] bool anyDirty() const;
};

struct QV_HIDDEN Recordset::Impl {
    Impl() = default;
    Impl(const Impl&) = delete;
    Impl& operator=(const Impl&) = delete;
    // A set that read its rows teaches the text's later sets which columns it used.
    ~Impl();

    bool open = false;
    std::string source;
    std::shared_ptr<StoreBackend> conn;
    QueryPlan plan;  // what a load runs and what the set can write back
    const std::vector<ColumnInfo>& cols = plan.cols;
    bool readOnly = true;            // opened with adLockReadOnly
    bool batch = true;               // writes wait for UpdateBatch
    std::vector<uint8_t> unchecked;  // fields written without the check (stamps, sums)
    // Names asked for, as asked, with their column: a set is walked asking
    // the same few names on every row.
    std::vector<std::pair<std::string, int>> named;

    bool loaded = false;
    int64_t counted = -1;  // the count of a set not read yet, once asked
    RowStore store;
    // The columns whose cells were read; empty when every column was.
    std::vector<uint8_t> present;
    std::vector<Row> rows;
    size_t pos = 0;
    size_t visible = 0;

    // The edit in progress (between the first assignment or AddNew and Update).
    ptrdiff_t editRow = -1;
    std::unique_ptr<Edit> editSnapshot;
    RowState editPrevState = RowState::Clean;
    bool editIsAddNew = false;
    size_t posBeforeAddNew = 0;

    void requireOpen() const;
    void requireCurrent() const;
    void requireWritable() const;
    [[nodiscard]] bool updatable() const { return !plan.table.empty() && plan.withIdentity; }
    [[nodiscard]] bool atEnd() const { return pos >= rows.size(); }
    [[nodiscard]] bool checked(size_t c) const { return c >= unchecked.size() || !unchecked[c]; }
    // "<what> "<source>"": the words of a failure, made only for one.
    [[nodiscard]] Doing doing(std::string_view what) const { return {*conn, what, source}; }

    void reset();
    void load();
    void ensureLoaded() {
        if (!loaded) load();
    }
    // Where the engine puts each row it reads.
    [[nodiscard]] std::function<Cell*(int64_t)> rowSink();
    void markLoaded();
    [[nodiscard]] int findColumn(std::string_view name);
    // A column's cells are about to be looked at: noted as used, and read
    // for every row where the load left them out.
    void need(size_t c) {
        if (plan.use && c < plan.use->used.size()) plan.use->used[c] = 1;
        if (!present.empty() && !present[c]) fill(c);
    }
    [[nodiscard]] bool isPresent(size_t c) const { return present.empty() || present[c]; }
    void moveToVisibleFrom(size_t i);

    // A field's value: the edit's where it holds one, else the cell as read.
    [[nodiscard]] Value valueAt(size_t r, size_t c) const { return layered(r, c, &Edit::vals, &Edit::has); }
    // The field's value as read, or as this set last wrote it.
    [[nodiscard]] Value readAt(size_t r, size_t c) const { return layered(r, c, &Edit::read, &Edit::hasRead); }
    // The field's value as this set last knew the store to hold it.
    [[nodiscard]] Value originalAt(size_t r, size_t c) const {
        return layered(r, c, &Edit::base, &Edit::hasBase);
    }
    // The same as the store holds it, for the check of a write: a cell goes
    // back as it was read, whatever its column's declared type.
    [[nodiscard]] Value expectedAt(size_t r, size_t c) const {
        return layered(r, c, &Edit::baseRaw, &Edit::hasBase, true);
    }

    // Editing the current row.
    void beginEdit();
    void endEdit();
    void assign(size_t c, const Value& v);
    void deleteRow(size_t r);

private:
    // The columns a load reads: null for all of them.
    [[nodiscard]] const std::vector<uint8_t>* loadColumns();
    void fill(size_t c);

    using Values = std::vector<Value> Edit::*;
    using Flags = std::vector<uint8_t> Edit::*;
    [[nodiscard]] Value layered(size_t r, size_t c, Values vals, Flags has, bool raw = false) const {
        const Row& row = rows[r];
        if (row.edit && ((*row.edit).*has)[c]) return ((*row.edit).*vals)[c];
        if (!row.cells) return {};
        return raw ? FieldCodec::rawFromCell(row.cells[c]) : FieldCodec::fromCell(row.cells[c], cols[c].type);
    }
};

}  // namespace qv
