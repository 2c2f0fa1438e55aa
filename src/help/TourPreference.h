#pragma once
// Whether the host shows the getting started tour when it starts. The host
// keeps it in its own settings; the help pop-up reads and writes it.

#include "Export.h"

namespace qv {

class QV_EXPORT TourPreference {
public:
    virtual ~TourPreference() = default;
    [[nodiscard]] virtual bool showTourAtStart() const = 0;
    virtual void setShowTourAtStart(bool show) = 0;
};

}  // namespace qv
