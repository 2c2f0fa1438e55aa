#pragma once
// Ownership of libical's components and strings.

#include <libical/ical.h>

#include <memory>

namespace qv {

struct IcalComponentFree {
    void operator()(icalcomponent* c) const { icalcomponent_free(c); }
};
using IcalComponentPtr = std::unique_ptr<icalcomponent, IcalComponentFree>;

}  // namespace qv
