#pragma once
// The views of the component's dialogs, by form name.

#include "kit/ViewFactory.h"

namespace qv {

class StandardViews {
public:
    [[nodiscard]] static ViewFactory make();
};

}  // namespace qv
