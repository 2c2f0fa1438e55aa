#include "dialogs/shared/StatusWords.h"

#include "session/globals/SessionGlobals.h"
#include "toolkit/Failure.h"

namespace qv {

std::string StatusWords::word(int32_t status) {
    switch (status) {
        case kCompleted: return "Completed";
        case kInProgress: return "In Progress";
        case kOnHold: return "On Hold";
        case kDefined: return "Defined";
        default: break;
    }
    const auto& list = g().StatusList;
    if (status < 0 || static_cast<std::size_t>(status) >= list.size())
        throw Failure(err::SubscriptOutOfRange, "Subscript out of range");
    return list[static_cast<std::size_t>(status)];
}

}  // namespace qv
