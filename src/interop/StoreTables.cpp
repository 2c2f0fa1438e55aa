#include "interop/StoreTables.h"

#include "store/clsNewKeyword.h"
#include "store/clsNewProject.h"
#include "store/clsNewTask.h"
#include "store/clsTaskSchedule.h"
#include "toolkit/Failure.h"

namespace qv {

namespace {

constexpr ColumnSpec kLinks[] = {
    {"ktTASKGUID", nullptr, ColumnKind::Text},
    {"ktTask", nullptr, ColumnKind::Text},
    {"ktKEYGUID", nullptr, ColumnKind::Text},
    {"ktKeyword", nullptr, ColumnKind::Text},
};

// Whole tables in a stable order, so a file written twice reads the same.
template <class Source>
std::unique_ptr<DataSource> openWith(const char* sql, RecordsetPtr& rs, bool byKey) {
    auto source = std::make_unique<Source>();
    bool opened = false;
    if (byKey) {
        source->SetSQLKey(sql);
        opened = source->GetDataKEY(rs);
    } else {
        source->SetSQL(sql);
        opened = source->GetData(rs);
    }
    if (!opened || !rs) throw Failure(err::StoreFailure, std::string("The store could not open: ") + sql);
    return source;
}

}  // namespace

namespace columns {
std::span<const ColumnSpec> links() { return kLinks; }
}  // namespace columns

TableSet::TableSet(StoreTable table) {
    switch (table) {
    case StoreTable::Tasks:
        source_ = openWith<clsNewTask>("SELECT * FROM TASKS ORDER BY tskCustSortQV, tskGUIDID", rs_, false);
        break;
    case StoreTable::TaskKeywords:
        source_ = openWith<clsNewTask>("SELECT * FROM TaskKeywords ORDER BY ktTASKGUID, ktKEYGUID", rs_, true);
        break;
    case StoreTable::Projects:
        source_ = openWith<clsNewProject>("SELECT * FROM PROJECTS ORDER BY prjGUIDID", rs_, false);
        break;
    case StoreTable::Keywords:
        source_ = openWith<clsNewKeyword>("SELECT * FROM KEYWORDS ORDER BY keyGUIDID", rs_, false);
        break;
    case StoreTable::Appointments: {
        auto source = std::make_unique<clsTaskSchedule>();
        source->SetSQL("SELECT * FROM TASKAPPTS ORDER BY taTaskGUIDID, taStartTime, taGUIDID");
        if (!source->GetDataKEY(rs_) || !rs_) throw Failure(err::StoreFailure, "The store could not open TASKAPPTS");
        source_ = std::move(source);
        break;
    }
    }
}

TableSet::~TableSet() {
    try {
        if (rs_ && rs_->State() == adStateOpen) rs_->Close();
    } catch (...) {  // a set that can't close has nothing left to lose
    }
}

Row TableSet::current(std::span<const ColumnSpec> specs) {
    Row row;
    for (const auto& entry : specs) {
        Value v = rs_->Fields(entry.column).value();
        if (!v.isNull()) row.emplace(entry.column, std::move(v));
    }
    return row;
}

std::vector<Row> TableSet::rows(std::span<const ColumnSpec> specs) {
    std::vector<Row> all;
    if (rs_->RecordCount() == 0) return all;
    rs_->MoveFirst();
    for (; !rs_->EOF_(); rs_->MoveNext()) all.push_back(current(specs));
    return all;
}

}  // namespace qv
