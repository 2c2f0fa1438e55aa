#include "interop/IcalMapping.h"

namespace qv::icalmap {

icalproperty_status statusOf(int16_t status) {
    switch (status) {
    case kDoneStatus: return ICAL_STATUS_COMPLETED;
    case kInProgressStatus: return ICAL_STATUS_INPROCESS;
    default: return ICAL_STATUS_NEEDSACTION;
    }
}

int16_t storeStatusOf(icalproperty_status status) {
    switch (status) {
    case ICAL_STATUS_COMPLETED: return kDoneStatus;
    case ICAL_STATUS_INPROCESS: return kInProgressStatus;
    case ICAL_STATUS_CANCELLED: return kDeferredStatus;
    default: return kDefinedStatus;
    }
}

int priorityOf(int16_t importance) {
    return importance >= 0 && importance <= 4 ? 1 + 2 * importance : 0;
}

std::optional<int16_t> importanceOf(int priority) {
    if (priority < 1 || priority > 9) return std::nullopt;
    static constexpr int16_t kByPriority[] = {0, 0, 1, 1, 2, 3, 3, 4, 4};
    return kByPriority[priority - 1];
}

}  // namespace qv::icalmap
