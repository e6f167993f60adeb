#include "host/core/FHistory.h"
#include "host/core/FLogMsg.h"
#include "host/core/FObjectManager.h"
#include "host/core/FPrototypes.h"
#include "host/core/FSelectionSet.h"
#include "host/design/FDesign.h"
#include "host/gui/base/FTheme.h"
#include "host/gui/panels/FLogModel.h"
#include "host/gui/window/FMainWindow.h"
#include "host/script/FProject.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QScrollBar>
#include <QTreeView>

namespace {

void settle() {
    constexpr int rounds = 5;
    for (int round = 0; round < rounds; ++round) {
        QCoreApplication::processEvents();
    }
}

void fillModel(int count) {
    FProject::instance()->create();
    const FHistoryBlocker blocker;
    for (int i = 0; i < count; ++i) {
        (new FDesign(QStringLiteral("p")))->registerObject();
    }
}

/** A bare window of the same size, to compare with. */
void bareWindow(benchmark::State& state) {
    for (auto _ : state) {
        QMainWindow window;
        window.resize(1480, 920);
        window.show();
        settle();
    }
}

void startWindow(benchmark::State& state) {
    FProject::instance()->create();
    for (auto _ : state) {
        FMainWindow window;
        window.show();
        settle();
    }
}

void openTree(benchmark::State& state) {
    fillModel(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        FMainWindow window;
        window.show();
        settle();
    }
}

/** The longest time of a page down in the tree. */
void scrollTree(benchmark::State& state) {
    fillModel(static_cast<int>(state.range(0)));
    FMainWindow window;
    window.show();
    settle();
    auto* tree = window.findChild<QTreeView*>(QStringLiteral("objectTree"));
    tree->expandAll();
    settle();
    double longest = 0;
    for (auto _ : state) {
        QElapsedTimer timer;
        timer.start();
        QScrollBar* bar = tree->verticalScrollBar();
        bar->setValue((bar->value() + bar->pageStep()) % (bar->maximum() + 1));
        QCoreApplication::processEvents();
        constexpr double million = 1e6;
        longest = std::max(longest, static_cast<double>(timer.nsecsElapsed()) / million);
    }
    state.counters["longest_ms"] = longest;
}

void selectObjects(benchmark::State& state) {
    fillModel(static_cast<int>(state.range(0)));
    FMainWindow window;
    window.show();
    settle();
    QList<FExpr<FObject>> objects;
    for (FManaged* object : FObjectManager::instance()->getManaged(FDesign::null())) {
        objects.append(FExpr<FObject>(object));
    }
    for (auto _ : state) {
        FSelectionSet::instance()->set(objects);
        settle();
        state.PauseTiming();
        FSelectionSet::instance()->clear();
        settle();
        state.ResumeTiming();
    }
}

void logMessages(benchmark::State& state) {
    const FLogMsg::Sink sink = FLogMsg::setSink([](const FLogMsg&) {});
    FLogModel model;
    for (auto _ : state) {
        for (int i = 0; i < state.range(0); ++i) {
            FLogMsg::info(QStringLiteral("source"), QString::number(i), QString());
        }
        settle();
    }
    FLogMsg::setSink(sink);
    state.counters["rows"] = model.rowCount();
}

BENCHMARK(bareWindow)->Unit(benchmark::kMillisecond);
BENCHMARK(startWindow)->Unit(benchmark::kMillisecond);
BENCHMARK(openTree)->Arg(1000)->Arg(100000)->Unit(benchmark::kMillisecond);
BENCHMARK(scrollTree)->Arg(100000)->Unit(benchmark::kMillisecond);
BENCHMARK(selectObjects)->Arg(1000)->Unit(benchmark::kMillisecond);
BENCHMARK(logMessages)->Arg(1000000)->Unit(benchmark::kMillisecond)->Iterations(1);

}  // namespace

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
