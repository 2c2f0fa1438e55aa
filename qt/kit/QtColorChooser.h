#pragma once
// The colour chooser port over the platform's colour dialog.

#include "Export.h"
#include "toolkit/ColorChooser.h"

namespace qv {

class QV_EXPORT QtColorChooser : public ColorChooser {
public:
    bool choose(int32_t initial, const std::string& title, bool center, int32_t& chosen) override;
};

}  // namespace qv
