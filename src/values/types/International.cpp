#include "values/types/International.h"

#include "toolkit/EnvLocaleInfo.h"
#include "toolkit/Ports.h"

namespace qv {

int32_t getLocalMeasurement() {
    if (ports().locale) return ports().locale->measurementSystem();
    return EnvLocaleInfo().measurementSystem();
}

}  // namespace qv
