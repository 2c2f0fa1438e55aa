#pragma once
// Times one dialog window on the desktop host, offscreen: from the call
// that opens it to its first paint, and to the moment it is complete (every
// tab's page is built and every sheet holds a cell for each of its tools,
// so every entry is reachable by scrolling), with the process' resident memory growth meanwhile. The
// window is then closed by its own tool.

#include <QString>
#include <functional>
#include <string>

namespace benchmark {
class State;
}

namespace qv {

class HostApp;
struct SampleSize;

struct PaintTimes {
    double firstPaintMs = -1;
    double completeMs = -1;
    double memoryGrowthMb = 0;
};

class PaintProbe {
public:
    // open: the host call that shows the window; closeTool: "smtActions.DONE".
    static PaintTimes measure(HostApp& host, const QString& form, const QString& closeTool,
                              const std::function<void()>& open);
    // A benchmark's iterations: manual time the first paint; the counters
    // complete_ms and rss_growth_MB the means of the rest.
    static void run(benchmark::State& state, HostApp& host, const QString& form,
                    const std::function<void()>& open);
    // A fresh program folder with a store filled to size; the store's path.
    static std::string sampleStore(const std::string& folder, const SampleSize& size);
    // Resident memory of this process, in megabytes.
    [[nodiscard]] static double residentMb();
};

}  // namespace qv
