#include "support/SampleAppointments.h"

#include <cstdio>

#include "installer/StoreFile.h"

namespace qv::bench {

void addSampleAppointments(const std::string& storePath, int tasks) {
    StoreFile store(storePath);
    store.exec("BEGIN");
    store.exec("WITH RECURSIVE n(i) AS (SELECT 0 UNION ALL SELECT i + 1 FROM n WHERE i < " +
               std::to_string(2 * tasks - 1) +
               ") INSERT INTO TASKAPPTS (taGUIDID, taTaskGUIDID, taProject, taProjectGUIDID, taStartTime, "
               "taEndTime, taTaskDesc, taImp, taDifficulty, taWasWorked, taTimeWorked, taDuration) "
               "SELECT printf('A%07d-%04d-0000-0000-000000000000', i / 2, i % 2), "
               "printf('T%07d-0000-0000-0000-000000000000', i / 2), 'Project 000', "
               "'P0000000-0000-0000-0000-000000000000', '2026-11-24T09:00:00.000', '2026-11-24T10:30:00.000', "
               "printf('Slot %06d', i), 2, 1, 0, 0, 90 FROM n");
    store.exec("COMMIT");
}

std::string sampleAppointmentKey(int n) {
    char key[40];
    std::snprintf(key, sizeof key, "A%07d-0000-0000-0000-000000000000", n);
    return key;
}

}  // namespace qv::bench
