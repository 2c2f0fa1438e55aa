#include "dialogs/shared/PointsTally.h"

#include <limits>

#include "dialogs/shared/TaskRecord.h"
#include "session/globals/SessionGlobals.h"
#include "toolkit/Failure.h"

namespace qv {

// An unset importance counts as the second level, an unset difficulty as the first.
int32_t PointsTally::impIndex(int32_t imp) { return imp >= 0 && imp <= 4 ? imp : 1; }

int32_t PointsTally::diffIndex(int32_t diff) { return diff >= 0 && diff <= 4 ? 5 + diff : 5; }

int32_t PointsTally::timeIndex(int32_t minutes) {
    if (minutes <= 10) return 10;
    return minutes >= 120 ? 12 : 11;
}

int32_t PointsTally::tally(const std::array<int32_t, 15>& table, int32_t imp, int32_t diff, int32_t timeNeeded,
                           bool hasChecklist, bool hasSchedule) {
    int64_t sum = 0;
    const auto add = [&sum](int32_t points) {
        sum += points;
        if (sum > std::numeric_limits<int32_t>::max() || sum < std::numeric_limits<int32_t>::min())
            throw Failure(err::Overflow, "Overflow");
    };
    add(table[static_cast<size_t>(impIndex(imp))]);
    add(table[static_cast<size_t>(diffIndex(diff))]);
    add(table[static_cast<size_t>(timeIndex(timeNeeded))]);
    if (hasChecklist) add(table[13]);
    if (hasSchedule) add(table[14]);
    return static_cast<int32_t>(sum);
}

int32_t PointsTally::tally(const TaskRecord& r) {
    return tally(g().PointsTable, r.Imp, r.Diff, r.TimeNeeded, r.HasChecklist, r.HasSchedule);
}

}  // namespace qv
