#include "dialogs/shared/StopwatchTool.h"

#include <limits>

#include "toolkit/Failure.h"
#include "toolkit/Tool.h"
#include "values/settings/StopwatchDisplay.h"
#include "values/settings/TimeValues.h"

namespace qv {

namespace {
const char* const kOn = "ON";
const char* const kOff = "OFF";
}  // namespace

void StopwatchTool::toggle(Tool& timer, StopwatchDisplay& display) {
    if (timer.tag() != kOn) {
        timer.setTag(kOn);
        timer.setImage("INUSE");
        display.StartTHETimer();
    } else {
        timer.setTag(kOff);
        timer.setImage("GRAY");
        display.StopTHETimer();
    }
}

std::string StopwatchTool::addReading(const std::string& reading, const std::string& spent) {
    const int64_t sum = int64_t{FormatCTasTime(reading)} + FormatCTasTime(spent);
    if (sum > std::numeric_limits<int32_t>::max() || sum < std::numeric_limits<int32_t>::min())
        throw Failure(err::Overflow, "Overflow");
    return SetTimeFormat(static_cast<double>(sum));
}

}  // namespace qv
