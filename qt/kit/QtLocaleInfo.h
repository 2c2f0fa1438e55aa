#pragma once
// The locale port from QLocale: metric or US units.

#include "Export.h"
#include "toolkit/LocaleInfo.h"

namespace qv {

class QV_EXPORT QtLocaleInfo : public LocaleInfo {
public:
    [[nodiscard]] int32_t measurementSystem() const override;
};

}  // namespace qv
