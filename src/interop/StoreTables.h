#pragma once
// The five tables a calendar file carries, opened through the store's own
// data-source classes as updatable sets, and read into rows.

#include <memory>
#include <span>
#include <vector>

#include "interop/StoreColumns.h"
#include "store/Recordset.h"

namespace qv {

class DataSource;

enum class StoreTable { Tasks, Appointments, TaskKeywords, Projects, Keywords };

class TableSet {
public:
    // Opens the whole table; throws Failure when the store refuses (the
    // data class has reported it already).
    explicit TableSet(StoreTable table);
    ~TableSet();
    TableSet(const TableSet&) = delete;
    TableSet& operator=(const TableSet&) = delete;

    [[nodiscard]] Recordset& rs() { return *rs_; }
    // Every row from the first, with the entry's columns that are not null.
    [[nodiscard]] std::vector<Row> rows(std::span<const ColumnSpec> specs);
    // The current row as such.
    [[nodiscard]] Row current(std::span<const ColumnSpec> specs);

private:
    std::unique_ptr<DataSource> source_;
    RecordsetPtr rs_;
};

namespace columns {
// TaskKeywords: every column text.
std::span<const ColumnSpec> links();
}  // namespace columns

}  // namespace qv
