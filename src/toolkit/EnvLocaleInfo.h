#pragma once
// The locale as the environment names it (LC_ALL, then LC_MEASUREMENT, then
// LANG): US units for en_US, metric for everything else.

#include <string>

#include "Export.h"
#include "toolkit/LocaleInfo.h"

namespace qv {

// The locale the environment names for one category: LC_ALL, then the
// category's own variable (LC_TIME, LC_MESSAGES, ...), then LANG; empty when
// none is set.
QV_EXPORT std::string environmentLocale(const char* categoryVariable);

class QV_EXPORT EnvLocaleInfo : public LocaleInfo {
public:
    [[nodiscard]] int32_t measurementSystem() const override;
    // The locale name that decides, or empty.
    [[nodiscard]] static std::string measurementLocale();
};

}  // namespace qv
