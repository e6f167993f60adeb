#include "host/core/FHistory.h"
#include "host/core/FLogMsg.h"
#include "host/core/FObjectManager.h"
#include "host/core/FSelectionSet.h"
#include "host/design/FDesign.h"
#include "host/gui/panels/FLogModel.h"
#include "host/gui/text/FOutputDocument.h"
#include "host/gui/text/FOutputViewer.h"
#include "host/gui/window/FMainWindow.h"
#include "host/script/FProject.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTreeView>

#include <malloc.h>

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

constexpr qint64 largeSize = qint64{2} << 30;

/** A file of 2 GB, of which only the ends take room on the disk. */
QString makeLargeFile(const QTemporaryDir& folder) {
    QFile file(folder.filePath(QStringLiteral("output.txt")));
    file.open(QIODevice::WriteOnly);
    file.write(QByteArray("a line of the output of a program\n").repeated(1000));
    file.seek(largeSize);
    file.write("\nthe last line\n");
    return file.fileName();
}

double heapInMegabytes() {
    constexpr double million = 1e6;
    return static_cast<double>(mallinfo2().uordblks + mallinfo2().hblkhd) / million;
}

/** From the start to the first page in view. */
void openLargeFile(benchmark::State& state) {
    const QTemporaryDir folder;
    const QString path = makeLargeFile(folder);
    for (auto _ : state) {
        FOutputDocument document(path);
        document.resize(1000, 800);
        document.grab();
        benchmark::DoNotOptimize(document.viewer().getTopLine());
    }
}

/** Until all lines are counted; with the longest time between two events, and the heap that the index takes. */
void indexLargeFile(benchmark::State& state) {
    const QTemporaryDir folder;
    const QString path = makeLargeFile(folder);
    double longest = 0;
    double heap = 0;
    for (auto _ : state) {
        const double before = heapInMegabytes();
        FOutputDocument document(path);
        document.show();
        while (!document.viewer().text().isIndexed()) {
            QElapsedTimer timer;
            timer.start();
            QCoreApplication::processEvents();
            longest = std::max(longest, static_cast<double>(timer.elapsed()));
        }
        heap = heapInMegabytes() - before;
    }
    state.counters["longest_ms"] = longest;
    state.counters["heap_MB"] = heap;
}

/** A program that writes 2 GB as fast as it can is followed at the end; the longest time for a look at the file. */
void followGrowingFile(benchmark::State& state) {
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("output.txt")));
    file.open(QIODevice::WriteOnly | QIODevice::Unbuffered);
    const QByteArray piece = QByteArray("a line of the output of a program\n").repeated(200'000);
    file.write(piece);
    FOutputDocument document(file.fileName());
    document.show();
    document.viewer().setTailing(true);
    double longest = 0;
    for (auto _ : state) {
        while (file.size() < largeSize) {
            file.write(piece);
            QElapsedTimer timer;
            timer.start();
            document.viewer().follow();
            QCoreApplication::processEvents();
            longest = std::max(longest, static_cast<double>(timer.elapsed()));
        }
    }
    state.counters["longest_ms"] = longest;
    state.counters["heap_MB"] = heapInMegabytes();
}

BENCHMARK(bareWindow)->Unit(benchmark::kMillisecond);
BENCHMARK(startWindow)->Unit(benchmark::kMillisecond);
BENCHMARK(openTree)->Arg(1000)->Arg(100000)->Unit(benchmark::kMillisecond);
BENCHMARK(scrollTree)->Arg(100000)->Unit(benchmark::kMillisecond);
BENCHMARK(selectObjects)->Arg(1000)->Unit(benchmark::kMillisecond);
BENCHMARK(openLargeFile)->Unit(benchmark::kMillisecond);
BENCHMARK(indexLargeFile)->Unit(benchmark::kMillisecond)->Iterations(1);
BENCHMARK(followGrowingFile)->Unit(benchmark::kMillisecond)->Iterations(1);
BENCHMARK(logMessages)->Arg(1000000)->Unit(benchmark::kMillisecond)->Iterations(1);

}  // namespace
