#pragma once
// How the store's status and importance read in a calendar. Status 0 is
// the done status; 1 is In Progress; every other one is a task still to do
// (NEEDS-ACTION: Deferred too, which CANCELLED would have readers count as
// done). A CANCELLED to-do comes in Deferred. The five importances, Critical first, spread over
// PRIORITY 1 (highest) to 9.

#include <libical/ical.h>

#include <cstdint>
#include <optional>

namespace qv::icalmap {

inline constexpr int16_t kDoneStatus = 0;
inline constexpr int16_t kInProgressStatus = 1;
inline constexpr int16_t kDefinedStatus = 3;  // a new task's status
inline constexpr int16_t kDeferredStatus = 5;
inline constexpr int16_t kMediumImportance = 2;

[[nodiscard]] icalproperty_status statusOf(int16_t status);
[[nodiscard]] int16_t storeStatusOf(icalproperty_status status);
// PRIORITY 1, 3, 5, 7, 9 for the importances 0 to 4; 0 (undefined) else.
[[nodiscard]] int priorityOf(int16_t importance);
// 1-2, 3-4, 5, 6-7, 8-9; nothing for 0 (undefined) or a number out of range.
[[nodiscard]] std::optional<int16_t> importanceOf(int priority);

}  // namespace qv::icalmap
