#include "support/ScheduleReport.h"

#include "reports/PrintSettings.h"
#include "session/globals/SessionGlobals.h"

namespace qv::bench {

ScheduleReport::ScheduleReport(int32_t appointments) : appointments_(appointments) {
    checklist_.setText("1. Dig the beds\n2. Plant the bulbs\n3. Water them in");
    notes_.setText("Ten bulbs by the fence, before the first frost.");
}

ReportRows ScheduleReport::taskRows() {
    ReportRows rows(2, 12);
    for (int32_t r = 0; r < 12; ++r) {
        rows.at(0, r) = "Label " + std::to_string(r) + ":";
        rows.at(1, r) = "Value of row " + std::to_string(r);
    }
    return rows;
}

std::optional<ReportRows> ScheduleReport::scheduleRows() {
    ReportRows rows(5, appointments_);
    for (int32_t r = 0; r < appointments_; ++r) {
        rows.at(0, r) = "3/" + std::to_string(1 + r % 28) + "/2026 9:00:00 AM";
        rows.at(1, r) = "3/" + std::to_string(1 + r % 28) + "/2026 9:30:00 AM";
        rows.at(2, r) = "0:30";
        rows.at(3, r) = r % 2 ? "True" : "False";
        rows.at(4, r) = "0:" + std::to_string(10 + r % 50);
    }
    return rows;
}

void ScheduleReport::useExistingTaskSettings() {
    g().DialogNum = PrintSettings::kExistingTaskDialog;
    g().TaskPrintDialog = PrintSettings::defaults(PrintSettings::kExistingTaskDialog);
}

}  // namespace qv::bench
