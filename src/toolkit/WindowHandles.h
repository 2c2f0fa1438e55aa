#pragma once
// Window handles for forms: positive numbers that name a form while it is
// loaded, for the places that take an owner window by handle.

#include <cstdint>

#include "Export.h"

namespace qv {

class Form;

class QV_EXPORT WindowHandles {
public:
    // The form's handle, given on first asking; 0 for a form not held by a
    // shared pointer.
    [[nodiscard]] static int32_t handleOf(const Form& form);
    // True while the handle names a loaded form.
    [[nodiscard]] static bool isWindow(int32_t handle);
};

}  // namespace qv
