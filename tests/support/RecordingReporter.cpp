#include "support/RecordingReporter.h"

namespace qv {

bool RecordingReporter::report(const FaultReport& fault) {
    faults_.push_back(fault);
    GotErrExitNow();
    return true;
}

}  // namespace qv
