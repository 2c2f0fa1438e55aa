#include "store/clsNewProject.h"

namespace qv {

clsNewProject::clsNewProject() : NewRowSource("clsNewProject") {}

}  // namespace qv
