#pragma once
// A store of the benchmarks' own: a fresh folder with an installed store
// and the scripted ports, removed when the process ends.

#include <string>

#include "toolkit/FakeClock.h"
#include "toolkit/CountingReporter.h"
#include "toolkit/ScriptedUi.h"

namespace qv::bench {

// Counts faults: a benchmark that met one is void.
using CountingReporter = qv::CountingReporter;

class BenchStore {
public:
    explicit BenchStore(const std::string& name);
    ~BenchStore();
    BenchStore(const BenchStore&) = delete;
    BenchStore& operator=(const BenchStore&) = delete;

    // Fresh globals and this store's ports: benchmarks share the process.
    void use();
    [[nodiscard]] const std::string& folder() const { return folder_; }
    [[nodiscard]] std::string storePath() const;

    ScriptedUi ui;
    FakeClock clock;
    CountingReporter reporter;

private:
    std::string folder_;
};

}  // namespace qv::bench
