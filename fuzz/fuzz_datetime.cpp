// The date and time readers: the store's ISO text, the date words a user
// or a setting may give, and any day serial. A date read from ISO text
// must write back to text that reads as the same date.

#include <cmath>
#include <cstring>

#include "FuzzPorts.h"
#include "values/types/Convert.h"
#include "values/types/DateSerial.h"

using namespace qv;
using namespace qv::dateserial;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    fuzz::readyPorts();
    const std::string input = fuzz::text(data, size);
    if (const auto serial = fromIso(input)) {
        if (!std::isfinite(*serial)) fuzz::broken("fromIso gave a non-finite serial", input);
        const auto again = fromIso(toIso(*serial));
        if (!again || std::fabs(*again - roundToMillisecond(*serial)) > 1e-6)
            fuzz::broken("an ISO date did not survive its round trip", input);
    }
    (void)tryToDate(input);
    (void)readsAsDate(input);
    if (size >= sizeof(double)) {
        double serial = 0;
        std::memcpy(&serial, data, sizeof serial);
        if (std::isfinite(serial) && std::fabs(serial) < 3e6) {
            const CivilTime t = toCivil(serial);
            if (!isValid(t)) fuzz::broken("toCivil gave an impossible date", input);
            (void)toIso(serial);
        }
    }
    return 0;
}
