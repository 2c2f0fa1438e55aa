#pragma once
// A large store for benchmarks and timings: bulk projects, keywords in
// subjects and tasks, written in one transaction.

#include <string>

namespace qv {

struct SampleSize {
    int tasks = 100000;
    int projects = 500;
    int keywords = 2000;
    int subjects = 50;
};

// Adds the rows to the store at storePath. Throws Failure on a store error.
void fillSampleStore(const std::string& storePath, const SampleSize& size = {});

}  // namespace qv
