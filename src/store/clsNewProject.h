#pragma once
// Writes projects.

#include "store/NewRowSource.h"

namespace qv {

class clsNewProject : public NewRowSource {
public:
    clsNewProject();
};

}  // namespace qv
