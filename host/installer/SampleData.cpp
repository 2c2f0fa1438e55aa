#include "installer/SampleData.h"

#include <sqlite3.h>

#include "toolkit/Failure.h"

namespace qv {

namespace {

void run(sqlite3* db, const std::string& sql) {
    char* message = nullptr;
    if (sqlite3_exec(db, sql.c_str(), nullptr, nullptr, &message) == SQLITE_OK) return;
    const std::string why = message ? message : "unknown";
    sqlite3_free(message);
    throw Failure(err::StoreFailure, why);
}

std::string upTo(int n) {
    return "WITH RECURSIVE n(i) AS (SELECT 0 UNION ALL SELECT i + 1 FROM n WHERE i < " + std::to_string(n - 1) +
           ") ";
}

}  // namespace

void fillSampleStore(const std::string& storePath, const SampleSize& size) {
    sqlite3* db = nullptr;
    if (sqlite3_open_v2(storePath.c_str(), &db, SQLITE_OPEN_READWRITE, nullptr) != SQLITE_OK) {
        sqlite3_close(db);
        throw Failure(err::StoreFailure, "cannot open " + storePath);
    }
    try {
        run(db, "BEGIN");
        run(db, upTo(size.projects) +
                    "INSERT INTO PROJECTS (prjGUIDID, prjProject, prjSummary, StatusLong) "
                    "SELECT printf('P%07d-0000-0000-0000-000000000000', i), printf('Project %03d', i), 'Bulk', 4 "
                    "FROM n");
        run(db, upTo(size.keywords) +
                    "INSERT INTO KEYWORDS (keyGUIDID, keySubject, keyKeyword) "
                    "SELECT printf('K%07d-0000-0000-0000-000000000000', i), printf('Subject %02d', i % " +
                    std::to_string(size.subjects) + "), printf('Keyword %04d', i) FROM n");
        run(db, upTo(size.tasks) +
                    "INSERT INTO TASKS (tskGUIDID, tskDesc, tskProject, tskProjectKey, tskStatus, tskImp, "
                    "tskDifficulty, tskTimeNeeded, tskTimeSpent, tskCurrent, tskPossPoints, tskCustSortQV, "
                    "tskCustSortCUR, tskCustSortProj, tskDeadline) "
                    "SELECT printf('T%07d-0000-0000-0000-000000000000', i), printf('Task %06d', i), "
                    "printf('Project %03d', i % " + std::to_string(size.projects) +
                    "), printf('P%07d-0000-0000-0000-000000000000', i % " + std::to_string(size.projects) +
                    "), i % 6, i % 5, i % 5, 30, 0, i % 10 = 0, 10, i, i, i, '1899-12-30T00:00:00.000' FROM n");
        run(db, "COMMIT");
    } catch (...) {
        sqlite3_close(db);
        throw;
    }
    sqlite3_close(db);
}

}  // namespace qv
