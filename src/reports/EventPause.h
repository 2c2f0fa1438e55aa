#pragma once
// Lets pending events run while a report is made, so the dialog stays
// alive. now() pauses at once (between sections and steps); tick() is
// called for every table cell and pauses only when some time has passed
// since the last pause, so a long table costs its cells, not the pump.

#include <chrono>

namespace qv {

class EventPause {
public:
    static void now();
    void tick();

private:
    using Steady = std::chrono::steady_clock;
    Steady::time_point last_ = Steady::now();
};

}  // namespace qv
