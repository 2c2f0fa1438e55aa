#pragma once
// The tests' reporter: keeps every fault it is told of and, like the real
// one, raises GotErrExitNow after each.

#include <vector>

#include "toolkit/Reporter.h"

namespace qv {

class RecordingReporter : public Reporter {
public:
    bool report(const FaultReport& fault) override;

    [[nodiscard]] const std::vector<FaultReport>& faults() const { return faults_; }
    void clear() { faults_.clear(); }

private:
    std::vector<FaultReport> faults_;
};

}  // namespace qv
