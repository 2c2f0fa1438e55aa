#pragma once
// A store of the benchmarks' own: a fresh folder with an installed store
// and the scripted ports, removed when the process ends.

#include <cstdint>
#include <string>
#include <vector>

struct sqlite3;

#include "toolkit/FakeClock.h"
#include "toolkit/CountingReporter.h"
#include "toolkit/ScriptedUi.h"

namespace qv::bench {

// Counts faults: a benchmark that met one is void.
using CountingReporter = qv::CountingReporter;

class BenchStore {
public:
    explicit BenchStore(const std::string& name);
    // A folder whose store is a fresh scratch store on the server of serverUri.
    BenchStore(const std::string& name, const std::string& serverUri);
    ~BenchStore();
    BenchStore(const BenchStore&) = delete;
    BenchStore& operator=(const BenchStore&) = delete;

    // Fresh globals and this store's ports: benchmarks share the process.
    void use();
    [[nodiscard]] const std::string& folder() const { return folder_; }
    // The store file's path, or the server store's URI.
    [[nodiscard]] std::string storePath() const;

    ScriptedUi ui;
    FakeClock clock;
    CountingReporter reporter;

private:
    std::string folder_;
    std::string server_;
};

// The large store of the dialogs' benchmarks: 100,000 tasks, 500 projects,
// 2,000 keywords in 50 subjects, and two tasks to open: kBusyTask with 50
// keywords and 200 appointments, kTwentyTask with 20 keywords.
inline constexpr const char* kBusyTask = "B0000000-0000-0000-0000-000000000050";
inline constexpr const char* kTwentyTask = "B0000000-0000-0000-0000-000000000020";
inline constexpr int kLargeKeywords = 2000;
BenchStore& largeStore();

// The sections LoadSettings reads, in its order.
const std::vector<std::string>& settingsSections();
// Walks every row of a query, reading each column as text; the cells read.
int64_t walk(sqlite3* db, const std::string& sql);
// What every task dialog's open reads: the settings, projects and keywords.
int64_t walkDialogLists(sqlite3* db);

}  // namespace qv::bench
