#pragma once
// The locale as the environment names it (LC_ALL, then LC_MEASUREMENT, then
// LANG): US units for en_US, metric for everything else.

#include <string>

#include "Export.h"
#include "toolkit/LocaleInfo.h"

namespace qv {

class QV_EXPORT EnvLocaleInfo : public LocaleInfo {
public:
    [[nodiscard]] int32_t measurementSystem() const override;
    // The locale name that decides, or empty.
    [[nodiscard]] static std::string measurementLocale();
};

}  // namespace qv
