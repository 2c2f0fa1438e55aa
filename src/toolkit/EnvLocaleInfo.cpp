#include "toolkit/EnvLocaleInfo.h"

#include <cstdlib>

namespace qv {

std::string EnvLocaleInfo::measurementLocale() {
    for (const char* var : {"LC_ALL", "LC_MEASUREMENT", "LANG"}) {
        const char* v = std::getenv(var);
        if (v && *v) return v;
    }
    return {};
}

int32_t EnvLocaleInfo::measurementSystem() const {
    return measurementLocale().rfind("en_US", 0) == 0 ? 1 : 0;
}

}  // namespace qv
