#pragma once
// Writes keywords.

#include "store/NewRowSource.h"

namespace qv {

class clsNewKeyword : public NewRowSource {
public:
    clsNewKeyword();
};

}  // namespace qv
