#pragma once
// A reporter that only counts the faults it is told of: for benchmarks and
// fuzzing, where any fault voids the run and nobody reads the report.

#include "toolkit/Reporter.h"

namespace qv {

class CountingReporter : public Reporter {
public:
    bool report(const FaultReport&) override {
        ++faults;
        return true;
    }
    int faults = 0;
};

}  // namespace qv
