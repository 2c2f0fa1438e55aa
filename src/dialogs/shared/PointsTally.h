#pragma once
// The possible points of a task, summed from the PointsTable of the
// settings: importance, difficulty, the time class and two extras.

#include <array>
#include <cstdint>

namespace qv {

struct TaskRecord;

class PointsTally {
public:
    // Throws Failure(Overflow) when the sum leaves 32 bits.
    [[nodiscard]] static int32_t tally(const std::array<int32_t, 15>& table, int32_t imp, int32_t diff,
                                       int32_t timeNeeded, bool hasChecklist, bool hasSchedule);

    // A packed task's points from the session's PointsTable.
    [[nodiscard]] static int32_t tally(const TaskRecord& r);

    // The table positions, exposed for the dialogs' tests of the classes.
    [[nodiscard]] static int32_t impIndex(int32_t imp);
    [[nodiscard]] static int32_t diffIndex(int32_t diff);
    [[nodiscard]] static int32_t timeIndex(int32_t minutes);
};

}  // namespace qv
