#include "toolkit/ReporterRelay.h"

#include "toolkit/Ports.h"
#include "toolkit/Reporter.h"

namespace qv {

ReporterRelay::ReporterRelay(Event<>& target) : reporter_(ports().reporter) {
    if (reporter_) id_ = reporter_->GotErrExitNow.connect([&target] { target(); });
}

ReporterRelay::~ReporterRelay() {
    if (reporter_) reporter_->GotErrExitNow.disconnect(id_);
}

}  // namespace qv
