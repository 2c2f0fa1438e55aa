#pragma once
// The write-back of a Recordset: its pending rows written in one transaction
// by the rows' identity, each changed field checked against the value read
// (optimistic concurrency), and other users' changes merged into the
// current row.

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "store/RecordsetImpl.h"

namespace qv {

class RecordWriteBack {
public:
    explicit RecordWriteBack(Recordset::Impl& set) : d_(set) {}

    // Writes every pending change in one transaction: all or nothing.
    void flush();
    // Other users' changes into the current row: a field this set leaves
    // as read takes the stored value; a field it changes that another user
    // changed too (to another value) is a conflict. The names taken.
    std::vector<std::string> merge();
    // The conflicting fields count as read with the other user's values,
    // so that the next write puts this set's values over them.
    void overwriteStored();

private:
    void writeRows(const std::vector<size_t>& work, std::vector<int64_t>& newIds, const std::string& ctx);
    void writeRow(Row& row, int64_t& newId, const std::string& ctx);
    void updateRow(Row& row, std::vector<std::string>& names, std::vector<Value>& values,
                   const std::string& ctx);
    // After the commit: the local rows hold what the store holds.
    void settle(Row& row, int64_t newId);
    // The stored row's values, as cells of the set's columns; false when it is gone.
    bool readStored(size_t r, RowStore& scratch, std::vector<Cell>& cells, const std::string& ctx);
    // Marks the checked fields this set changes that the store no longer
    // holds as read (and not as this set would write them); true for any.
    bool findClashes(size_t r, const std::string& ctx);
    void markClash(Edit& e, size_t c, const Value& now, const Cell& cell);
    [[nodiscard]] std::vector<std::string> clashNames(const Row& row) const;
    [[noreturn]] static void throwGone(const std::string& ctx);

    Recordset::Impl& d_;
};

}  // namespace qv
