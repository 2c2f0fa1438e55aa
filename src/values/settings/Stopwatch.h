#pragma once
// The one stopwatch of a loaded component: g().StopwatchStart and
// g().StopwatchStop on the clock's millisecond tick count (Stop 0: running).
// Each runs under the trap of module m_Task.

#include <string>

namespace qv {

bool startTimer();
bool StopTimer();
// "hh:mm:ss" of the running or final time; at 24 hours and beyond the parts
// stand unpadded ("25:3:7"). A tick count wrapped at 2^31 or minutes beyond
// 16 bits (about 22 days) are reported and give the empty text.
std::string ElapsedTime();

}  // namespace qv
