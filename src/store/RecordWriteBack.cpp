#include "store/RecordWriteBack.h"

#include <algorithm>

#include "store/WriteConflict.h"
#include "toolkit/Failure.h"

namespace qv {

void RecordWriteBack::flush() {
    std::vector<size_t> work;
    for (size_t i = 0; i < d_.rows.size(); ++i)
        if (d_.rows[i].pending()) work.push_back(i);
    if (work.empty()) return;
    d_.requireWritable();

    StoreBackend& conn = *d_.conn;
    const std::string ctx =
        conn.where("writing the changes of table " + d_.plan.table + " of \"" + d_.source + "\"");
    const bool outer = !conn.inTransaction();
    conn.exec(outer ? std::string(conn.beginText()) : std::string("SAVEPOINT qv_batch"), ctx);
    std::vector<int64_t> newIds(work.size(), 0);
    try {
        writeRows(work, newIds, ctx);
        conn.exec(outer ? "COMMIT" : "RELEASE qv_batch", ctx);
    } catch (...) {
        if (outer) {
            conn.execQuiet("ROLLBACK");
        } else {
            conn.execQuiet("ROLLBACK TO qv_batch");
            conn.execQuiet("RELEASE qv_batch");
        }
        throw;
    }
    for (size_t k = 0; k < work.size(); ++k) settle(d_.rows[work[k]], newIds[k]);
}

void RecordWriteBack::writeRows(const std::vector<size_t>& work, std::vector<int64_t>& newIds,
                                const std::string& ctx) {
    for (size_t k = 0; k < work.size(); ++k) writeRow(d_.rows[work[k]], newIds[k], ctx);
}

void RecordWriteBack::writeRow(Row& row, int64_t& newId, const std::string& ctx) {
    if (row.state == RowState::Deleted) {
        d_.conn->removeRow(d_.plan.table, row.rowid, ctx);
        return;
    }
    const bool added = row.state == RowState::New;
    std::vector<std::string> names;
    std::vector<Value> values;
    for (size_t c = 0; c < d_.cols.size(); ++c) {
        if (!(added ? row.edit->has[c] : row.edit->dirty[c])) continue;
        names.push_back(d_.cols[c].origin);
        values.push_back(row.edit->vals[c]);
    }
    if (added) {
        newId = d_.conn->insertRow(d_.plan.table, names, values, ctx);
        return;
    }
    if (!names.empty()) updateRow(row, names, values, ctx);
}

void RecordWriteBack::updateRow(Row& row, std::vector<std::string>& names, std::vector<Value>& values,
                                const std::string& ctx) {
    const size_t r = static_cast<size_t>(&row - d_.rows.data());
    std::vector<std::string> checkNames;
    std::vector<Value> checkValues;
    for (size_t c = 0; c < d_.cols.size(); ++c) {
        if (!row.edit->dirty[c] || !d_.checked(c)) continue;
        checkNames.push_back(d_.cols[c].origin);
        checkValues.push_back(d_.expectedAt(r, c));
    }
    StoreBackend& conn = *d_.conn;
    if (conn.updateRow(d_.plan.table, names, values, checkNames, checkValues, row.rowid, ctx) > 0) return;
    // Nothing matched: the row is gone, or another user changed a field
    // this set changes. Read it again to tell which.
    if (findClashes(r, ctx)) throw WriteConflict(d_.plan.table, clashNames(row), ctx);
    // Only the stored form differed: write over what is the same value.
    if (conn.updateRow(d_.plan.table, names, values, {}, {}, row.rowid, ctx) == 0) throwGone(ctx);
}

void RecordWriteBack::settle(Row& row, int64_t newId) {
    if (row.state == RowState::Deleted) {
        row.state = RowState::Gone;
        return;
    }
    const bool added = row.state == RowState::New;
    if (added) row.rowid = newId;
    row.state = RowState::Clean;
    if (!row.edit) return;
    Edit& e = *row.edit;
    // What was written is what the store holds now.
    for (size_t c = 0; c < d_.cols.size(); ++c) {
        if (!(added ? e.has[c] : e.dirty[c])) continue;
        e.setBase(c, e.vals[c], e.vals[c]);
        e.read[c] = e.vals[c];
        e.hasRead[c] = 1;
        e.clash[c] = 0;
    }
    std::fill(e.dirty.begin(), e.dirty.end(), 0);
}

void RecordWriteBack::throwGone(const std::string& ctx) {
    throw Failure(err::StoreFailure,
                  "The row being written was deleted by another user since it was read (" + ctx + ")",
                  "Recordset");
}

bool RecordWriteBack::readStored(size_t r, RowStore& scratch, std::vector<Cell>& cells, const std::string& ctx) {
    std::vector<std::string> names;
    names.reserve(d_.cols.size());
    for (const ColumnInfo& col : d_.cols) names.push_back(col.origin);
    cells.assign(d_.cols.size(), Cell{});
    return d_.conn->readRow(d_.plan.table, names, d_.rows[r].rowid, scratch, cells.data(), ctx);
}

void RecordWriteBack::markClash(Edit& e, size_t c, const Value& now, const Cell& cell) {
    e.stored[c] = now;
    e.storedRaw[c] = FieldCodec::rawFromCell(cell);
    e.clash[c] = 1;
}

bool RecordWriteBack::findClashes(size_t r, const std::string& ctx) {
    RowStore scratch;
    std::vector<Cell> cells;
    if (!readStored(r, scratch, cells, ctx)) throwGone(ctx);
    Edit& e = *d_.rows[r].edit;
    bool any = false;
    for (size_t c = 0; c < d_.cols.size(); ++c) {
        if (!e.dirty[c] || !d_.checked(c)) continue;
        const Value now = FieldCodec::fromCell(cells[c], d_.cols[c].type);
        // Unchanged, or changed by both alike: no conflict.
        if (FieldCodec::sameStored(now, d_.originalAt(r, c)) || FieldCodec::sameStored(now, e.vals[c])) {
            e.setBase(c, now, FieldCodec::rawFromCell(cells[c]));
            continue;
        }
        markClash(e, c, now, cells[c]);
        any = true;
    }
    return any;
}

std::vector<std::string> RecordWriteBack::clashNames(const Row& row) const {
    std::vector<std::string> out;
    for (size_t c = 0; c < d_.cols.size(); ++c)
        if (row.edit->clash[c]) out.push_back(d_.cols[c].name);
    return out;
}

std::vector<std::string> RecordWriteBack::merge() {
    d_.requireCurrent();
    const size_t pos = d_.pos;
    Row& row = d_.rows[pos];
    if (row.state == RowState::New) return {};
    const std::string ctx =
        d_.conn->where("reading again a row of table " + d_.plan.table + " of \"" + d_.source + "\"");
    RowStore scratch;
    std::vector<Cell> cells;
    if (!readStored(pos, scratch, cells, ctx)) throwGone(ctx);
    if (!row.edit) row.edit = std::make_unique<Edit>(d_.cols.size());
    Edit& e = *row.edit;
    std::vector<std::string> taken;
    bool clash = false;
    for (size_t c = 0; c < d_.cols.size(); ++c) {
        // A column this set never read has nothing to merge: read later, it shows what stands then.
        if (d_.cols[c].origin.empty() || !d_.isPresent(c)) continue;
        const Value now = FieldCodec::fromCell(cells[c], d_.cols[c].type);
        const bool unchanged = FieldCodec::sameStored(now, d_.originalAt(pos, c));
        if (e.dirty[c] && !d_.checked(c)) continue;
        if (e.dirty[c] && !unchanged && !FieldCodec::sameStored(now, e.vals[c])) {
            markClash(e, c, now, cells[c]);
            clash = true;
            continue;
        }
        // A field this set leaves as read shows what stands now.
        if (!e.dirty[c] && !FieldCodec::sameStored(now, d_.valueAt(pos, c))) {
            e.vals[c] = now;
            e.has[c] = 1;
            taken.push_back(d_.cols[c].name);
        }
        e.setBase(c, now, FieldCodec::rawFromCell(cells[c]));
    }
    if (row.state == RowState::Modified && !row.anyDirty()) row.state = RowState::Clean;
    if (clash) throw WriteConflict(d_.plan.table, clashNames(row), ctx);
    return taken;
}

void RecordWriteBack::overwriteStored() {
    for (Row& row : d_.rows) {
        if (!row.edit) continue;
        Edit& e = *row.edit;
        for (size_t c = 0; c < d_.cols.size(); ++c) {
            if (!e.clash[c]) continue;
            e.setBase(c, e.stored[c], e.storedRaw[c]);
            e.clash[c] = 0;
        }
    }
}

}  // namespace qv
