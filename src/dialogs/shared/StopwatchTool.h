#pragma once
// The stopwatch tool "TIMER" of a times sheet, as the Existing Task and Task
// Appointment dialogs share it: its tag says "ON" or "OFF" and its picture
// "INUSE" or "GRAY"; a click starts or stops the one stopwatch of the
// component. What else a click enables is each dialog's own.

#include <string>

namespace qv {

class StopwatchDisplay;
class Tool;

class StopwatchTool {
public:
    // Tag "OFF", or anything but "ON", starts; tag "ON" stops.
    static void toggle(Tool& timer, StopwatchDisplay& display);
    // The time spent plus the stopwatch's reading, both read as durations,
    // as a duration text. A clock reading with two colons reads as 0.
    // Throws Failure (overflow) when the sum leaves 32 bits.
    [[nodiscard]] static std::string addReading(const std::string& reading, const std::string& spent);
};

}  // namespace qv
