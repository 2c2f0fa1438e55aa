#pragma once
// The key of the task a dialog saves: the session's CurrentTaskGUID, made
// anew first unless it is a key of 36 characters.

#include <string>

namespace qv {

[[nodiscard]] std::string utilNewTaskGUID();

}  // namespace qv
