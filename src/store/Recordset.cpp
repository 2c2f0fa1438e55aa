#include "store/Recordset.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <limits>
#include <string_view>

#include "store/FieldCodec.h"
#include "store/RowStore.h"
#include "store/StoreBackend.h"
#include "store/WriteConflict.h"
#include "toolkit/Failure.h"
#include "values/types/DateSerial.h"

namespace qv {

namespace {

// The platform's numbers and words for the result-set failures.
constexpr int32_t kErrNoCurrentRecord = 3021;
constexpr int32_t kErrNotUpdatable = 3251;
constexpr int32_t kErrItemNotFound = 3265;
constexpr int32_t kErrClosed = 3704;
constexpr int32_t kErrOpen = 3705;

[[noreturn]] void throwClosed() {
    throw Failure(kErrClosed, "Operation is not allowed when the object is closed.", "Recordset");
}
[[noreturn]] void throwAlreadyOpen() {
    throw Failure(kErrOpen, "Operation is not allowed when the object is open.", "Recordset");
}
[[noreturn]] void throwNoCurrent() {
    throw Failure(kErrNoCurrentRecord,
                  "Either BOF or EOF is True, or the current record has been deleted. Requested "
                  "operation requires a current record.",
                  "Recordset");
}
[[noreturn]] void throwNotUpdatable() {
    throw Failure(kErrNotUpdatable,
                  "Current Recordset does not support updating. This may be a limitation of the "
                  "provider, or of the selected locktype.",
                  "Recordset");
}
[[noreturn]] void throwNotFound() {
    throw Failure(kErrItemNotFound,
                  "Item cannot be found in the collection corresponding to the requested name or "
                  "ordinal.",
                  "Recordset");
}

using Column = ColumnInfo;

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
    const Cell* cells = nullptr;  // as read; none for an added row
    RowState state = RowState::Clean;
    std::unique_ptr<Edit> edit;
    [[nodiscard]] bool visible() const { return state != RowState::Deleted && state != RowState::Gone; }
};

}  // namespace

struct Recordset::Impl {
    bool open = false;
    std::string source;
    std::shared_ptr<StoreBackend> conn;
    QueryPlan plan;  // what a load runs and what the set can write back
    const std::vector<Column>& cols = plan.cols;
    bool readOnly = true;  // opened with adLockReadOnly
    bool batch = true;     // writes wait for UpdateBatch
    std::vector<uint8_t> unchecked;  // fields written without the check (stamps, sums)

    bool loaded = false;
    int64_t counted = -1;  // the count of a set not read yet, once asked
    RowStore store;
    std::vector<Row> rows;
    size_t pos = 0;
    size_t visible = 0;

    // The edit in progress (between the first assignment or AddNew and Update).
    ptrdiff_t editRow = -1;
    std::unique_ptr<Edit> editSnapshot;
    RowState editPrevState = RowState::Clean;
    bool editIsAddNew = false;
    size_t posBeforeAddNew = 0;

    void requireOpen() const {
        if (!open) throwClosed();
    }

    std::string context(std::string_view what) const {
        return conn->where(std::string(what) + " \"" + source + "\"");
    }

    void reset() {
        loaded = false;
        counted = -1;
        store.clear();
        rows.clear();
        pos = 0;
        visible = 0;
        editRow = -1;
        editSnapshot.reset();
        editIsAddNew = false;
    }

    // Where the engine puts each row it reads.
    [[nodiscard]] std::function<Cell*(int64_t)> rowSink() {
        return [this](int64_t id) {
            Row& row = rows.emplace_back();
            row.rowid = id;
            Cell* cells = store.cells(cols.size());
            row.cells = cells;
            return cells;
        };
    }

    void loaded_() {
        loaded = true;
        visible = rows.size();
        pos = 0;
    }

    void load() {
        reset();
        conn->read(plan, store, rowSink(), context("reading"));
        loaded_();
    }

    void ensureLoaded() {
        if (!loaded) load();
    }

    [[nodiscard]] bool atEnd() const { return pos >= rows.size(); }

    void requireCurrent() const {
        if (pos >= rows.size() || !rows[pos].visible()) throwNoCurrent();
    }

    [[nodiscard]] bool updatable() const { return !plan.table.empty() && plan.withIdentity; }

    void requireWritable() const {
        if (readOnly || !updatable()) throwNotUpdatable();
    }

    [[nodiscard]] Value decode(const Cell& cell, FieldType type) const {
        switch (cell.kind) {
            case kCellInteger: {
                const int64_t i = cell.i;
                switch (type) {
                    case FieldType::Bool:
                        return Value(i != 0);
                    case FieldType::Int16:
                        if (FieldCodec::fitsInt16(i)) return Value(static_cast<int16_t>(i));
                        [[fallthrough]];
                    case FieldType::Int32:
                    case FieldType::Expr:
                        if (FieldCodec::fitsInt32(i)) return Value(static_cast<int32_t>(i));
                        return Value(static_cast<double>(i));
                    case FieldType::Double:
                        return Value(static_cast<double>(i));
                    case FieldType::Date:
                        return Value(Date{static_cast<double>(i)});
                    case FieldType::Text:
                        return Value(std::to_string(i));
                }
                break;
            }
            case kCellFloat:
                switch (type) {
                    case FieldType::Bool:
                        return Value(cell.d != 0.0);
                    case FieldType::Date:
                        return Value(Date{cell.d});
                    case FieldType::Text:
                        return Value(Value(cell.d).toText());
                    default:
                        return Value(cell.d);
                }
            case kCellText:
            case kCellBlob: {
                const std::string_view text(cell.text, cell.len);
                if (type == FieldType::Date) {
                    if (auto serial = dateserial::fromIso(text)) return Value(Date{*serial});
                    try {
                        return Value(Value(std::string(text)).toDate());
                    } catch (const Failure&) {
                    }
                } else if (type == FieldType::Bool) {
                    try {
                        return Value(Value(std::string(text)).toBool());
                    } catch (const Failure&) {
                    }
                }
                return Value(std::string(text));
            }
            default:
                break;
        }
        return {};
    }

    // A field's value from one layer of the row's edit where it holds one,
    // else the cell as read (decoded for the column, or as stored).
    using Values = std::vector<Value> Edit::*;
    using Flags = std::vector<uint8_t> Edit::*;
    [[nodiscard]] Value layered(size_t r, size_t c, Values vals, Flags has, bool raw = false) const {
        const Row& row = rows[r];
        if (row.edit && ((*row.edit).*has)[c]) return ((*row.edit).*vals)[c];
        if (!row.cells) return {};
        return raw ? rawValue(row.cells[c]) : decode(row.cells[c], cols[c].type);
    }

    [[nodiscard]] Value valueAt(size_t r, size_t c) const { return layered(r, c, &Edit::vals, &Edit::has); }

    // The field's value as read, or as this set last wrote it.
    [[nodiscard]] Value readAt(size_t r, size_t c) const {
        return layered(r, c, &Edit::read, &Edit::hasRead);
    }

    // The field's value as this set last knew the store to hold it.
    [[nodiscard]] Value originalAt(size_t r, size_t c) const {
        return layered(r, c, &Edit::base, &Edit::hasBase);
    }

    // The same as the store holds it, for the check of a write: a cell goes
    // back as it was read, whatever its column's declared type.
    [[nodiscard]] Value expectedAt(size_t r, size_t c) const {
        return layered(r, c, &Edit::baseRaw, &Edit::hasBase, true);
    }

    [[nodiscard]] static Value rawValue(const Cell& cell) {
        switch (cell.kind) {
            case kCellInteger:
                if (FieldCodec::fitsInt32(cell.i)) return Value(static_cast<int32_t>(cell.i));
                return Value(static_cast<double>(cell.i));
            case kCellFloat:
                return Value(cell.d);
            case kCellText:
            case kCellBlob:
                return Value(std::string(cell.text, cell.len));
            default:
                return {};
        }
    }

    [[nodiscard]] bool checked(size_t c) const { return c >= unchecked.size() || !unchecked[c]; }

    int findColumn(std::string_view name) const {
        for (size_t i = 0; i < cols.size(); ++i)
            if (FieldCodec::equalsNoCase(cols[i].name, name)) return static_cast<int>(i);
        return -1;
    }

    // --- editing -----------------------------------------------------------

    void beginEdit() {
        if (editRow == static_cast<ptrdiff_t>(pos)) return;
        if (editRow >= 0) endEdit();
        Row& row = rows[pos];
        editRow = static_cast<ptrdiff_t>(pos);
        editSnapshot = row.edit ? std::make_unique<Edit>(*row.edit) : nullptr;
        editPrevState = row.state;
        editIsAddNew = false;
    }

    void endEdit() {
        editRow = -1;
        editSnapshot.reset();
        editIsAddNew = false;
    }

    void assign(size_t c, const Value& v) {
        requireOpen();
        requireWritable();
        ensureLoaded();
        requireCurrent();
        const Column& col = cols[c];
        if (col.origin.empty())
            throw Failure(
                err::StoreFailure,
                "Insufficient base table information for updating or refreshing. (field " + col.name + ")",
                "Recordset");
        Value converted = FieldCodec::convertFor(col.type, v);  // may throw: nothing changed yet
        beginEdit();
        Row& row = rows[pos];
        // A stored row given the value it holds is not changed: nothing is
        // written, and another user's change to that field stays.
        const bool same = row.state != RowState::New && FieldCodec::sameStored(converted, readAt(pos, c));
        if (!row.edit) row.edit = std::make_unique<Edit>(cols.size());
        row.edit->vals[c] = std::move(converted);
        row.edit->has[c] = 1;
        row.edit->dirty[c] = same ? 0 : 1;
        if (row.state == RowState::Clean && !same) row.state = RowState::Modified;
        if (row.state == RowState::Modified && !anyDirty(row)) row.state = RowState::Clean;
    }

    [[nodiscard]] static bool anyDirty(const Row& row) {
        return row.edit &&
               std::find(row.edit->dirty.begin(), row.edit->dirty.end(), 1) != row.edit->dirty.end();
    }

    void deleteRow(size_t r) {
        Row& row = rows[r];
        if (!row.visible()) return;
        if (editRow == static_cast<ptrdiff_t>(r)) endEdit();
        row.state = row.state == RowState::New ? RowState::Gone : RowState::Deleted;
        --visible;
    }

    void moveToVisibleFrom(size_t i) {
        while (i < rows.size() && !rows[i].visible()) ++i;
        pos = i;
    }

    // --- writing back ------------------------------------------------------

    [[nodiscard]] bool pending(const Row& row) const {
        return row.state == RowState::New || row.state == RowState::Modified ||
               row.state == RowState::Deleted;
    }

    void writeRow(Row& row, int64_t& newId, const std::string& ctx) {
        const std::string& table = plan.table;
        if (row.state == RowState::Deleted) {
            conn->removeRow(table, row.rowid, ctx);
            return;
        }
        const bool added = row.state == RowState::New;
        std::vector<std::string> names;
        std::vector<Value> values;
        for (size_t c = 0; c < cols.size(); ++c) {
            if (!(added ? row.edit->has[c] : row.edit->dirty[c])) continue;
            names.push_back(cols[c].origin);
            values.push_back(row.edit->vals[c]);
        }
        if (added) {
            newId = conn->insertRow(table, names, values, ctx);
            return;
        }
        if (names.empty()) return;
        const size_t r = static_cast<size_t>(&row - rows.data());
        std::vector<std::string> checkNames;
        std::vector<Value> checkValues;
        for (size_t c = 0; c < cols.size(); ++c) {
            if (!row.edit->dirty[c] || !checked(c)) continue;
            checkNames.push_back(cols[c].origin);
            checkValues.push_back(expectedAt(r, c));
        }
        if (conn->updateRow(table, names, values, checkNames, checkValues, row.rowid, ctx) > 0) return;
        // Nothing matched: the row is gone, or another user changed a field
        // this set changes. Read it again to tell which.
        if (findClashes(r, ctx)) throw WriteConflict(plan.table, clashNames(row), ctx);
        // Only the stored form differed: write over what is the same value.
        if (conn->updateRow(table, names, values, {}, {}, row.rowid, ctx) == 0) throwGone(ctx);
    }

    [[noreturn]] void throwGone(const std::string& ctx) const {
        throw Failure(err::StoreFailure,
                      "The row being written was deleted by another user since it was read (" + ctx + ")",
                      "Recordset");
    }

    // The stored row's values, as cells of the set's columns; false when it is gone.
    bool readStored(size_t r, RowStore& scratch, std::vector<Cell>& cells, const std::string& ctx) {
        std::vector<std::string> names;
        for (const Column& col : cols) names.push_back(col.origin.empty() ? std::string() : col.origin);
        cells.assign(cols.size(), Cell{});
        return conn->readRow(plan.table, names, rows[r].rowid, scratch, cells.data(), ctx);
    }

    // Marks the checked fields this set changes that the store no longer
    // holds as read (and not as this set would write them); true for any.
    bool findClashes(size_t r, const std::string& ctx) {
        RowStore scratch;
        std::vector<Cell> cells;
        if (!readStored(r, scratch, cells, ctx)) throwGone(ctx);
        Row& row = rows[r];
        bool any = false;
        for (size_t c = 0; c < cols.size(); ++c) {
            if (!row.edit->dirty[c] || !checked(c)) continue;
            const Value now = decode(cells[c], cols[c].type);
            // Unchanged, or changed by both alike: no conflict.
            if (FieldCodec::sameStored(now, originalAt(r, c)) ||
                FieldCodec::sameStored(now, row.edit->vals[c])) {
                row.edit->setBase(c, now, rawValue(cells[c]));
                continue;
            }
            row.edit->stored[c] = now;
            row.edit->storedRaw[c] = rawValue(cells[c]);
            row.edit->clash[c] = 1;
            any = true;
        }
        return any;
    }

    [[nodiscard]] std::vector<std::string> clashNames(const Row& row) const {
        std::vector<std::string> out;
        for (size_t c = 0; c < cols.size(); ++c)
            if (row.edit->clash[c]) out.push_back(cols[c].name);
        return out;
    }

    // Other users' changes into the current row: a field this set leaves
    // as read takes the stored value; a field it changes that another user
    // changed too (to another value) is a conflict.
    std::vector<std::string> merge() {
        requireCurrent();
        Row& row = rows[pos];
        if (row.state == RowState::New) return {};
        const std::string ctx =
            conn->where("reading again a row of table " + plan.table + " of \"" + source + "\"");
        RowStore scratch;
        std::vector<Cell> cells;
        if (!readStored(pos, scratch, cells, ctx)) throwGone(ctx);
        if (!row.edit) row.edit = std::make_unique<Edit>(cols.size());
        Edit& e = *row.edit;
        std::vector<std::string> taken;
        bool clash = false;
        for (size_t c = 0; c < cols.size(); ++c) {
            if (cols[c].origin.empty()) continue;
            const Value now = decode(cells[c], cols[c].type);
            const bool unchanged = FieldCodec::sameStored(now, originalAt(pos, c));
            if (e.dirty[c] && !checked(c)) continue;
            if (e.dirty[c] && !unchanged && !FieldCodec::sameStored(now, e.vals[c])) {
                e.stored[c] = now;
                e.storedRaw[c] = rawValue(cells[c]);
                e.clash[c] = 1;
                clash = true;
                continue;
            }
            // A field this set leaves as read shows what stands now.
            if (!e.dirty[c] && !FieldCodec::sameStored(now, valueAt(pos, c))) {
                e.vals[c] = now;
                e.has[c] = 1;
                taken.push_back(cols[c].name);
            }
            e.setBase(c, now, rawValue(cells[c]));
        }
        if (row.state == RowState::Modified && !anyDirty(row)) row.state = RowState::Clean;
        if (clash) throw WriteConflict(plan.table, clashNames(row), ctx);
        return taken;
    }

    // The conflicting fields count as read with the other user's values,
    // so that the next write puts this set's values over them.
    void overwriteStored() {
        for (Row& row : rows) {
            if (!row.edit) continue;
            for (size_t c = 0; c < cols.size(); ++c) {
                if (!row.edit->clash[c]) continue;
                row.edit->setBase(c, row.edit->stored[c], row.edit->storedRaw[c]);
                row.edit->clash[c] = 0;
            }
        }
    }

    // Writes every pending change in one transaction: all or nothing.
    void flush() {
        std::vector<size_t> work;
        for (size_t i = 0; i < rows.size(); ++i)
            if (pending(rows[i])) work.push_back(i);
        if (work.empty()) return;
        if (readOnly || !updatable()) throwNotUpdatable();

        const std::string ctx = conn->where("writing the changes of table " + plan.table + " of \"" + source + "\"");
        const bool outer = !conn->inTransaction();
        conn->exec(outer ? std::string(conn->beginText()) : std::string("SAVEPOINT qv_batch"), ctx);
        std::vector<int64_t> newIds(work.size(), 0);
        try {
            for (size_t k = 0; k < work.size(); ++k) writeRow(rows[work[k]], newIds[k], ctx);
            conn->exec(outer ? "COMMIT" : "RELEASE qv_batch", ctx);
        } catch (...) {
            if (outer) {
                conn->execQuiet("ROLLBACK");
            } else {
                conn->execQuiet("ROLLBACK TO qv_batch");
                conn->execQuiet("RELEASE qv_batch");
            }
            throw;
        }
        // Written: the local rows follow.
        for (size_t k = 0; k < work.size(); ++k) {
            Row& row = rows[work[k]];
            if (row.state == RowState::Deleted) {
                row.state = RowState::Gone;
                continue;
            }
            const bool added = row.state == RowState::New;
            if (added) row.rowid = newIds[k];
            row.state = RowState::Clean;
            if (!row.edit) continue;
            // What was written is what the store holds now.
            for (size_t c = 0; c < cols.size(); ++c) {
                if (!(added ? row.edit->has[c] : row.edit->dirty[c])) continue;
                row.edit->setBase(c, row.edit->vals[c], row.edit->vals[c]);
                row.edit->read[c] = row.edit->vals[c];
                row.edit->hasRead[c] = 1;
                row.edit->clash[c] = 0;
            }
            std::fill(row.edit->dirty.begin(), row.edit->dirty.end(), 0);
        }
    }
};

// ---------------------------------------------------------------------------

const std::string& Field::Name() const {
    rs_->d_->requireOpen();
    return rs_->d_->cols[static_cast<size_t>(index_)].name;
}

Value Field::value() const {
    auto& d = *rs_->d_;
    d.requireOpen();
    d.ensureLoaded();
    d.requireCurrent();
    return d.valueAt(d.pos, static_cast<size_t>(index_));
}

void Field::setValue(const Value& v) {
    rs_->d_->assign(static_cast<size_t>(index_), v);
}

// ---------------------------------------------------------------------------

Recordset::Recordset() : d_(std::make_unique<Impl>()) {}

Recordset::~Recordset() = default;

void Recordset::Open(const Query& query, const std::string& connString, int32_t cursor, int32_t lock,
                     int32_t /*options*/) {
    if (d_->open) throwAlreadyOpen();
    const std::string& source = query.text;
    const int32_t effCursor = cursor != -1 ? cursor : CursorType;
    const int32_t effLock = lock != -1 ? lock : LockType;

    auto conn = StoreBackend::forConnString(connString);
    auto d = std::make_unique<Impl>();
    d->plan = conn->plan(source);
    d->plan.params = query.values;
    d->source = source;
    d->conn = std::move(conn);
    d->readOnly = effLock == adLockReadOnly || effLock == adLockUnspecified;
    d->batch = effLock == adLockBatchOptimistic;
    d->open = true;
    // A text that is no SELECT runs now, as the platform's Open runs it.
    if (!d->plan.isSelect) d->load();

    CursorType = effCursor;
    LockType = effLock;
    d_ = std::move(d);
}

void Recordset::Close() {
    d_->requireOpen();
    d_ = std::make_unique<Impl>();
}

int32_t Recordset::State() const {
    return d_->open ? adStateOpen : adStateClosed;
}

int32_t Recordset::RecordCount() {
    d_->requireOpen();
    if (!d_->loaded && d_->counted < 0) {
        bool read = false;
        d_->reset();
        const int64_t n =
            d_->conn->countOrRead(d_->plan, d_->store, d_->rowSink(), d_->context("counting the rows of"), read);
        if (read) d_->loaded_();
        if (!read) d_->counted = n;
    }
    // Asked again before the rows are read, the set answers without asking the store.
    if (!d_->loaded && d_->counted >= 0)
        return d_->counted > std::numeric_limits<int32_t>::max() ? std::numeric_limits<int32_t>::max()
                                                                 : static_cast<int32_t>(d_->counted);
    d_->ensureLoaded();
    return static_cast<int32_t>(d_->visible);
}

bool Recordset::EOF_() {
    d_->requireOpen();
    d_->ensureLoaded();
    return d_->atEnd();
}

bool Recordset::BOF_() {
    d_->requireOpen();
    d_->ensureLoaded();
    return d_->visible == 0 && d_->atEnd();
}

void Recordset::MoveFirst() {
    d_->requireOpen();
    d_->ensureLoaded();
    if (d_->editRow >= 0) Update();
    d_->moveToVisibleFrom(0);
}

void Recordset::MoveNext() {
    d_->requireOpen();
    d_->ensureLoaded();
    if (d_->atEnd()) throwNoCurrent();
    if (d_->editRow >= 0) Update();
    d_->moveToVisibleFrom(d_->pos + 1);
}

Field Recordset::Fields(const std::string& name) {
    d_->requireOpen();
    const int i = d_->findColumn(name);
    if (i < 0) throwNotFound();
    return Field(*this, i);
}

int32_t Recordset::FieldCount() {
    d_->requireOpen();
    return static_cast<int32_t>(d_->cols.size());
}

Field Recordset::FieldAt(int index) {
    d_->requireOpen();
    if (index < 0 || static_cast<size_t>(index) >= d_->cols.size()) throwNotFound();
    return Field(*this, index);
}

void Recordset::AddNew() {
    d_->requireOpen();
    d_->requireWritable();
    d_->ensureLoaded();
    if (d_->editRow >= 0) Update();
    Row row;
    row.state = RowState::New;
    row.edit = std::make_unique<Edit>(d_->cols.size());
    d_->rows.push_back(std::move(row));
    ++d_->visible;
    d_->posBeforeAddNew = d_->pos;
    d_->pos = d_->rows.size() - 1;
    d_->editRow = static_cast<ptrdiff_t>(d_->pos);
    d_->editSnapshot.reset();
    d_->editPrevState = RowState::New;
    d_->editIsAddNew = true;
}

void Recordset::Update() {
    d_->requireOpen();
    if (d_->editRow < 0) return;
    d_->endEdit();
    if (!d_->batch) d_->flush();
}

void Recordset::UpdateBatch(int32_t /*affect*/) {
    d_->requireOpen();
    if (!d_->loaded) return;  // nothing read, nothing changed
    if (d_->editRow >= 0) d_->endEdit();
    d_->flush();
}

void Recordset::CancelUpdate() {
    d_->requireOpen();
    auto& d = *d_;
    if (d.editRow < 0) return;
    Row& row = d.rows[static_cast<size_t>(d.editRow)];
    if (d.editIsAddNew) {
        row.state = RowState::Gone;
        --d.visible;
        // Back to the row that was current before AddNew (or the end).
        const size_t before = d.posBeforeAddNew;
        d.pos = before >= static_cast<size_t>(d.editRow) ? d.rows.size() : before;
    } else {
        row.edit = std::move(d.editSnapshot);
        row.state = d.editPrevState;
    }
    d.endEdit();
}

void Recordset::Delete(int32_t affect) {
    d_->requireOpen();
    d_->requireWritable();
    d_->ensureLoaded();
    if (affect == adAffectAll || affect == adAffectAllChapters) {
        for (size_t i = 0; i < d_->rows.size(); ++i) d_->deleteRow(i);
    } else {
        d_->requireCurrent();
        d_->deleteRow(d_->pos);
    }
    if (!d_->batch) d_->flush();
}

void Recordset::Requery(int32_t /*options*/) {
    d_->requireOpen();
    d_->reset();
    if (!d_->plan.isSelect) d_->load();
}

void Recordset::WriteUnchecked(const std::string& name) {
    d_->requireOpen();
    const int i = d_->findColumn(name);
    if (i < 0) throwNotFound();
    d_->unchecked.resize(d_->cols.size(), 0);
    d_->unchecked[static_cast<size_t>(i)] = 1;
}

std::vector<std::string> Recordset::MergeStored() {
    d_->requireOpen();
    d_->requireWritable();
    d_->ensureLoaded();
    return d_->merge();
}

void Recordset::OverwriteStored() {
    d_->requireOpen();
    d_->overwriteStored();
}

const std::string& Recordset::Source() const {
    return d_->source;
}

}  // namespace qv
