#include "view/HostStore.h"

#include <limits>
#include <stdexcept>

#include "installer/StoreFile.h"
#include "toolkit/TextFill.h"
#include "toolkit/Translate.h"
#include "values/types/Digits.h"
#include "view/HostRows.h"

namespace qv {

namespace {

std::string text(const HostRows::Row& row, std::size_t col) {
    return row[col].value_or(std::string());
}

// A whole-number column's cell; a cell that holds anything else is told, not read as 0.
int32_t number(const HostRows::Row& row, std::size_t col, const char* column, int32_t null = 0) {
    if (!row[col]) return null;
    const auto n = wholeNumber(*row[col]);
    if (!n || *n < std::numeric_limits<int32_t>::min() || *n > std::numeric_limits<int32_t>::max())
        throw std::runtime_error(qv::fill(tr("The store holds \"%1\" in %2, a column of whole numbers."),
                                          {*row[col], column}));
    return static_cast<int32_t>(*n);
}

std::vector<NamedRow> named(const std::string& location, const std::string& sql) {
    std::vector<NamedRow> rows;
    for (const auto& r : HostRows(location).select(sql)) rows.push_back({text(r, 0), text(r, 1)});
    return rows;
}

}  // namespace

HostStore::HostStore(std::string folder) : folder_(std::move(folder)) {}

std::string HostStore::location() const {
    return storeLocationOf(folder_);
}

std::vector<TaskRow> HostStore::tasks(bool currentOnly, const std::string& projectKey) const {
    std::string sql =
        "SELECT tskGUIDID, tskDesc, tskProject, tskProjectKey, tskStatus, tskDeadline, tskTimeNeeded, "
        "tskTimeSpent, tskPossPoints, tskCurrent, tskImp, tskDifficulty FROM TASKS WHERE 1=1";
    std::vector<std::string> params;
    if (currentOnly) sql += " AND tskCurrent<>0";
    if (!projectKey.empty()) {
        sql += " AND tskProjectKey=?";
        params.push_back(projectKey);
    }
    sql += currentOnly ? " ORDER BY tskCustSortCUR" : " ORDER BY tskCustSortQV";
    std::vector<TaskRow> rows;
    for (const auto& r : HostRows(location()).select(sql, params))
        rows.push_back({text(r, 0), text(r, 1), text(r, 2), text(r, 3), number(r, 4, "tskStatus", -1),
                        text(r, 5), number(r, 6, "tskTimeNeeded"), number(r, 7, "tskTimeSpent"),
                        number(r, 8, "tskPossPoints"), number(r, 9, "tskCurrent") != 0,
                        number(r, 10, "tskImp"), number(r, 11, "tskDifficulty")});
    return rows;
}

std::vector<NamedRow> HostStore::catalog() const {
    return named(location(), "SELECT tskGUIDID, tskDesc FROM TASKSCAT ORDER BY tskDesc");
}

std::vector<NamedRow> HostStore::projects() const {
    return named(location(), "SELECT prjGUIDID, prjProject FROM PROJECTS ORDER BY prjProject");
}

std::vector<std::string> HostStore::statusList() const {
    std::vector<std::string> words;
    for (const auto& row : named(location(),
                                 "SELECT SetSettingName, SetSettingValue FROM Settings WHERE "
                                 "SetSettingSection='Status' ORDER BY setSettingDisplayOrd, SetSettingName"))
        words.push_back(row.name);
    return words;
}

std::vector<AppointmentRow> HostStore::appointments(const std::string& taskKey) const {
    std::vector<AppointmentRow> rows;
    for (const auto& r :
         HostRows(location())
             .select("SELECT taGUIDID, taStartTime, taEndTime, taTaskDesc, taWasWorked FROM TASKAPPTS "
                     "WHERE taTaskGUIDID=? ORDER BY taStartTime",
                     {taskKey}))
        rows.push_back({text(r, 0), text(r, 1), text(r, 2), text(r, 3), number(r, 4, "taWasWorked") != 0});
    return rows;
}

// The task, its keyword links and its appointments go together or not at all.
void HostStore::deleteTask(const std::string& guid) const {
    HostRows(location())
        .runTogether({"DELETE FROM TASKS WHERE tskGUIDID=?", "DELETE FROM TaskKeywords WHERE ktTASKGUID=?",
                      "DELETE FROM TASKAPPTS WHERE taTaskGUIDID=?"},
                     guid);
}

}  // namespace qv
