#pragma once
// The locale port from QLocale: metric or US units.

#include "toolkit/LocaleInfo.h"

namespace qv {

class QtLocaleInfo : public LocaleInfo {
public:
    [[nodiscard]] int32_t measurementSystem() const override;
};

}  // namespace qv
