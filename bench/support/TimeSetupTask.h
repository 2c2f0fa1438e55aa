#pragma once
// Times SetupTask up to the modal wait, on a store of the benchmarks: the
// first scripted step hides the dialog, so the wait returns at once; then,
// untimed, check says what went wrong (empty: nothing) and the dialog goes.

#include <benchmark/benchmark.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "session/clsTask2.h"
#include "support/BenchStore.h"
#include "toolkit/Form.h"

namespace qv::bench {

template <typename Dialog, typename Check>
void timeSetupTask(benchmark::State& state, BenchStore& s, int32_t mode, const std::string& key,
                   const std::string& slotKey, Dialog dialog, Check check) {
    s.use();
    clsTask2 task;
    const std::vector<std::string> ustuff(6);
    for (auto _ : state) {
        s.ui.queueAction([&task, &dialog] { dialog(task)->hide(); });
        task.SetupTask(mode, key, ustuff, 1, {}, slotKey);
        state.PauseTiming();
        if (const std::string wrong = check(task); !wrong.empty()) state.SkipWithError(wrong.c_str());
        dialog(task)->unload();
        releaseDeferred();
        state.ResumeTiming();
    }
    if (s.reporter.faults) state.SkipWithError("the error path ran");
}

}  // namespace qv::bench
