#include "dialogs/shared/TaskGuid.h"

#include "session/globals/SessionGlobals.h"
#include "values/types/CCreateGuid.h"
#include "values/types/TextChars.h"

namespace qv {

std::string utilNewTaskGUID() {
    constexpr std::size_t kGuidLength = 36;
    auto& s = g();
    if (charCount(s.CurrentTaskGUID) != kGuidLength) s.CurrentTaskGUID = CCreateGuid::guid();
    return s.CurrentTaskGUID;
}

}  // namespace qv
