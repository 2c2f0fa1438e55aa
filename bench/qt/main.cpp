// The desktop benchmarks need a QApplication, offscreen.
#include <benchmark/benchmark.h>

#include <QApplication>

#include "kit/UserLanguage.h"

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    qv::UserLanguage::useIn(app);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
