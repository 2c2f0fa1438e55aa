// The duration grammar: any text typed into a time field must end in a
// number of minutes, a message at the spot, or the error path; never a
// crash, a hang or undefined behaviour. The first bytes choose the day
// settings that the grammar reads (hours in a day, the working day).

#include <cstring>

#include "FuzzPorts.h"
#include "session/globals/SessionGlobals.h"
#include "toolkit/Failure.h"
#include "values/types/Convert.h"
#include "values/settings/DateFormats.h"
#include "values/settings/TimeValues.h"

using namespace qv;

namespace {
const char* const kDays[][3] = {
    {"24", "480", "1020"}, {"8", "480", "1020"}, {"7.5", "8", "17"},     {"0", "0", "0"},
    {"x", "", ""},         {"8", "1020", "480"}, {"-3", "1e308", "NaN"}, {"1e9", "-1", "99999999999"}};
}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    fuzz::readyPorts();
    if (size < 9) return 0;
    const auto& day = kDays[data[0] % (sizeof kDays / sizeof *kDays)];
    g().DateFormats[datefmt::HoursInDay] = day[0];
    g().DateFormats[datefmt::D5Start] = day[1];
    g().DateFormats[datefmt::D5End] = day[2];
    double minutes = 0;
    std::memcpy(&minutes, data + 1, sizeof minutes);
    const std::string input = fuzz::text(data + 9, size - 9);

    (void)FormatCTasTime(input);
    (void)CheckCTasTime(input);
    (void)IsTimeValue(input);
    (void)IsTime(input);
    const std::string shown = SetTimeFormat(minutes);
    if (shown.size() > 64) fuzz::broken("SetTimeFormat gave an overlong text", shown);
    try {
        (void)toLong(input);
    } catch (const Failure& f) {
        if (f.number() != err::TypeMismatch && f.number() != err::Overflow)
            fuzz::broken("toLong failed with an undocumented number", input);
    }
    (void)tryToDouble(input);
    return 0;
}
