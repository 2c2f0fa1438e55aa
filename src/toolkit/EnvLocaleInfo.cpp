#include "toolkit/EnvLocaleInfo.h"

#include <cstdlib>

namespace qv {

std::string environmentLocale(const char* categoryVariable) {
    for (const char* var : {"LC_ALL", categoryVariable, "LANG"}) {
        const char* v = std::getenv(var);
        if (v && *v) return v;
    }
    return {};
}

std::string EnvLocaleInfo::measurementLocale() { return environmentLocale("LC_MEASUREMENT"); }

int32_t EnvLocaleInfo::measurementSystem() const {
    return measurementLocale().rfind("en_US", 0) == 0 ? 1 : 0;
}

}  // namespace qv
