#include "store/clsNewKeyword.h"

namespace qv {

clsNewKeyword::clsNewKeyword() : NewRowSource("clsNewKeyword") {}

}  // namespace qv
