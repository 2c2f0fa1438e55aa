#include "reports/EventPause.h"

#include "toolkit/Ports.h"
#include "toolkit/Ui.h"

namespace qv {

namespace {
constexpr auto kCellPause = std::chrono::milliseconds(30);
}  // namespace

void EventPause::now() {
    if (Ui* u = ports().ui) u->doEvents();
}

void EventPause::tick() {
    const auto t = Steady::now();
    if (t - last_ < kCellPause) return;
    now();
    last_ = Steady::now();
}

}  // namespace qv
