#include "store/clsNewTask.h"

namespace qv {

clsNewTask::clsNewTask() : NewRowSource("clsNewTask") {}

}  // namespace qv
