#include "store/Recordset.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <string_view>
#include <unordered_map>

#include "store/FieldCodec.h"
#include "store/RecordWriteBack.h"
#include "store/RecordsetImpl.h"
#include "store/RowStore.h"
#include "store/StoreBackend.h"
#include "toolkit/Failure.h"

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

}  // namespace

bool Row::anyDirty() const {
    return edit && std::find(edit->dirty.begin(), edit->dirty.end(), 1) != edit->dirty.end();
}

// --- the set's state ---------------------------------------------------------

void Recordset::Impl::requireOpen() const {
    if (!open) throwClosed();
}

void Recordset::Impl::requireCurrent() const {
    if (pos >= rows.size() || !rows[pos].visible()) throwNoCurrent();
}

void Recordset::Impl::requireWritable() const {
    if (readOnly || !updatable()) throwNotUpdatable();
}

Recordset::Impl::~Impl() {
    if (loaded && plan.use) plan.use->learned = true;
}

void Recordset::Impl::reset() {
    loaded = false;
    present.clear();
    counted = -1;
    store.clear();
    rows.clear();
    pos = 0;
    visible = 0;
    editRow = -1;
    editSnapshot.reset();
    editIsAddNew = false;
}

std::function<Cell*(int64_t)> Recordset::Impl::rowSink() {
    return [this](int64_t id) {
        Row& row = rows.emplace_back();
        row.rowid = id;
        Cell* cells = store.cells(cols.size());
        row.cells = cells;
        return cells;
    };
}

void Recordset::Impl::markLoaded() {
    loaded = true;
    visible = rows.size();
    pos = 0;
}

void Recordset::Impl::load() {
    reset();
    const std::vector<uint8_t>* only = loadColumns();
    conn->read(plan, only, store, rowSink(), doing("reading"));
    markLoaded();
}

const std::vector<uint8_t>* Recordset::Impl::loadColumns() {
    if (plan.use && plan.use->used.size() != cols.size()) {
        plan.use->used.assign(cols.size(), 0);
        plan.use->learned = false;
    }
    if (!plan.use || !plan.use->learned) return nullptr;
    present = plan.use->used;
    if (std::find(present.begin(), present.end(), 0) == present.end()) present.clear();
    return present.empty() ? nullptr : &present;
}

void Recordset::Impl::fill(size_t c) {
    // Every column the load left out comes in one pass: a set whose text
    // learned too few columns reads the store again once, not once per column.
    std::vector<uint8_t> only(cols.size(), 0);
    for (size_t i = 0; i < cols.size(); ++i) only[i] = present[i] ? 0 : 1;
    only[c] = 1;
    // The rows come back in the order they were read, but for rows other
    // users added or removed since; those added are passed by.
    size_t next = 0;
    std::unordered_map<int64_t, size_t> byId;
    auto rowFor = [&](int64_t id) -> Cell* {
        while (next < rows.size() && !rows[next].cells) ++next;
        if (next < rows.size() && rows[next].rowid == id) return rows[next++].cells;
        if (byId.empty())
            for (size_t r = 0; r < rows.size(); ++r)
                if (rows[r].cells) byId.emplace(rows[r].rowid, r);
        const auto found = byId.find(id);
        return found == byId.end() ? nullptr : rows[found->second].cells;
    };
    conn->read(plan, &only, store, rowFor, doing("reading"));
    present.clear();
}

int Recordset::Impl::findColumn(std::string_view name) {
    for (const auto& [asked, index] : named)
        if (asked == name) return index;
    for (size_t i = 0; i < cols.size(); ++i)
        if (FieldCodec::equalsNoCase(cols[i].name, name)) {
            named.emplace_back(name, static_cast<int>(i));
            return static_cast<int>(i);
        }
    return -1;
}

void Recordset::Impl::moveToVisibleFrom(size_t i) {
    while (i < rows.size() && !rows[i].visible()) ++i;
    pos = i;
}

// --- editing -------------------------------------------------------------------

void Recordset::Impl::beginEdit() {
    if (editRow == static_cast<ptrdiff_t>(pos)) return;
    if (editRow >= 0) endEdit();
    Row& row = rows[pos];
    editRow = static_cast<ptrdiff_t>(pos);
    editSnapshot = row.edit ? std::make_unique<Edit>(*row.edit) : nullptr;
    editPrevState = row.state;
    editIsAddNew = false;
}

void Recordset::Impl::endEdit() {
    editRow = -1;
    editSnapshot.reset();
    editIsAddNew = false;
}

void Recordset::Impl::assign(size_t c, const Value& v) {
    requireOpen();
    requireWritable();
    ensureLoaded();
    requireCurrent();
    const ColumnInfo& col = cols[c];
    if (col.origin.empty())
        throw Failure(err::StoreFailure,
                      "Insufficient base table information for updating or refreshing. (field " + col.name + ")",
                      "Recordset");
    Value converted = FieldCodec::convertFor(col.type, v);  // may throw: nothing changed yet
    need(c);
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
    if (row.state == RowState::Modified && !row.anyDirty()) row.state = RowState::Clean;
}

void Recordset::Impl::deleteRow(size_t r) {
    Row& row = rows[r];
    if (!row.visible()) return;
    if (editRow == static_cast<ptrdiff_t>(r)) endEdit();
    row.state = row.state == RowState::New ? RowState::Gone : RowState::Deleted;
    --visible;
}

// -----------------------------------------------------------------------------

const std::string& Field::Name() const {
    rs_->d_->requireOpen();
    return rs_->d_->cols[static_cast<size_t>(index_)].name;
}

Value Field::value() const {
    auto& d = *rs_->d_;
    d.requireOpen();
    d.ensureLoaded();
    d.requireCurrent();
    d.need(static_cast<size_t>(index_));
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
            d_->conn->countOrRead(d_->plan, d_->store, d_->rowSink(), d_->doing("counting the rows of"), read);
        if (read) d_->markLoaded();
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
    if (!d_->batch) RecordWriteBack(*d_).flush();
}

void Recordset::UpdateBatch(int32_t /*affect*/) {
    d_->requireOpen();
    if (!d_->loaded) return;  // nothing read, nothing changed
    if (d_->editRow >= 0) d_->endEdit();
    RecordWriteBack(*d_).flush();
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
    if (!d_->batch) RecordWriteBack(*d_).flush();
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
    return RecordWriteBack(*d_).merge();
}

void Recordset::OverwriteStored() {
    d_->requireOpen();
    RecordWriteBack(*d_).overwriteStored();
}

const std::string& Recordset::Source() const {
    return d_->source;
}

}  // namespace qv
