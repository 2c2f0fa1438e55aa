#pragma once
// The views of the component's dialogs, by form name.

#include "Export.h"
#include "kit/ViewFactory.h"

namespace qv {

class QV_EXPORT StandardViews {
public:
    [[nodiscard]] static ViewFactory make();
};

}  // namespace qv
