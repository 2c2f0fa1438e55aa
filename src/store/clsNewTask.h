#pragma once
// Writes tasks and reads the rows a dialog updates.

#include "store/NewRowSource.h"

namespace qv {

class clsNewTask : public NewRowSource {
public:
    clsNewTask();
};

}  // namespace qv
