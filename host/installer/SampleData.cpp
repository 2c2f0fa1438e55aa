#include "installer/SampleData.h"

#include "installer/StoreFile.h"

namespace qv {

namespace {

std::string upTo(int n) {
    return "WITH RECURSIVE n(i) AS (SELECT 0 UNION ALL SELECT i + 1 FROM n WHERE i < " + std::to_string(n - 1) +
           ") ";
}

}  // namespace

void fillSampleStore(const std::string& storePath, const SampleSize& size) {
    StoreFile store(storePath);
    store.exec("BEGIN");
    store.exec(upTo(size.projects) +
               "INSERT INTO PROJECTS (prjGUIDID, prjProject, prjSummary, StatusLong) "
               "SELECT printf('P%07d-0000-0000-0000-000000000000', i), printf('Project %03d', i), 'Bulk', 4 "
               "FROM n");
    store.exec(upTo(size.keywords) +
               "INSERT INTO KEYWORDS (keyGUIDID, keySubject, keyKeyword) "
               "SELECT printf('K%07d-0000-0000-0000-000000000000', i), printf('Subject %02d', i % " +
               std::to_string(size.subjects) + "), printf('Keyword %04d', i) FROM n");
    store.exec(upTo(size.tasks) +
               "INSERT INTO TASKS (tskGUIDID, tskDesc, tskProject, tskProjectKey, tskStatus, tskImp, "
               "tskDifficulty, tskTimeNeeded, tskTimeSpent, tskCurrent, tskPossPoints, tskCustSortQV, "
               "tskCustSortCUR, tskCustSortProj, tskDeadline) "
               "SELECT printf('T%07d-0000-0000-0000-000000000000', i), printf('Task %06d', i), "
               "printf('Project %03d', i % " + std::to_string(size.projects) +
               "), printf('P%07d-0000-0000-0000-000000000000', i % " + std::to_string(size.projects) +
               "), i % 6, i % 5, i % 5, 30, 0, i % 10 = 0, 10, i, i, i, '1899-12-30T00:00:00.000' FROM n");
    store.exec("COMMIT");
}

}  // namespace qv
