#pragma once
// The words a task dialog shows for a stored status number: the four the
// program names itself, and the session's StatusList for any other.

#include <cstdint>
#include <string>

namespace qv {

class StatusWords {
public:
    static constexpr int32_t kCompleted = 0;
    static constexpr int32_t kInProgress = 1;
    static constexpr int32_t kOnHold = 2;
    static constexpr int32_t kDefined = 3;

    // 0 "Completed", 1 "In Progress", 2 "On Hold", 3 "Defined", else the
    // StatusList entry; a number beyond the list throws (subscript out of range).
    [[nodiscard]] static std::string word(int32_t status);
};

}  // namespace qv
