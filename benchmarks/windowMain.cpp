// The program around the benchmarks of windows: offscreen, with all classes known.

#include "host/core/FPrototypes.h"
#include "host/gui/base/FTheme.h"
#include "host/script/FProject.h"

#include <benchmark/benchmark.h>

#include <QApplication>

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    FTheme::install();
    FPrototypes::buildPending();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    FProject::instance()->create();
    return 0;
}
