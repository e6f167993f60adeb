// The page of a result template with a large sample, compared with a bare QPlainTextEdit with the same text. Each
// number is a counter: the times of single events matter, and not how often they can be repeated.

#include "benchmarks/processMemory.h"
#include "genericintegration/editors/FGenIntResultsFileEdit.h"
#include "genericintegration/editors/FGenIntResultsFileEditor.h"
#include "genericintegration/editors/FSamplePointing.h"
#include "genericintegration/setup/FGenIntComputation.h"
#include "host/core/FHistory.h"
#include "host/gui/base/FSpinBox.h"
#include "host/script/FProject.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QtTest/QTest>

#include <memory>

namespace {

constexpr int manyLines = 500'000;
const QSize size(1200, 800);

double milliseconds(const QElapsedTimer& timer) {
    constexpr double million = 1e6;
    return static_cast<double>(timer.nsecsElapsed()) / million;
}

void settle() {
    constexpr int rounds = 5;
    for (int round = 0; round < rounds; ++round) {
        QCoreApplication::processEvents();
    }
}

/** A history of about 30 MB, with a step every hundred lines. */
const QString& sample() {
    static const QString text = [] {
        QString lines;
        for (int i = 0; i < manyLines; ++i) {
            lines += i % 100 == 0
                         ? QStringLiteral(" step %1 residual = 1.2345E-05 and what else is printed there\n").arg(i)
                         : QStringLiteral("  %1  0.1234567E+01  0.2345678E+02  -0.3456789E+03  0.5\n").arg(i);
        }
        return lines;
    }();
    return text;
}

class FPage {
 public:
    FPage() {
        FProject::instance()->create();
        const FHistoryBlocker blocker;
        mpFile = FGenIntResultsFile::create(QStringLiteral("out"));
        mpFile->setContent(sample());
        constexpr int values = 20;
        for (int i = 0; i < values; ++i) {
            mpFile->addValue(QString(), 1 + i, 2, QStringLiteral("step 250000"), QStringLiteral("First"), false,
                             FExpr<FUnsigned>(new FUnsigned(0)));
        }
    }
    ~FPage() {
        mpPage.reset();
        FProject::instance()->create();
    }
    void show() {
        mpPage = std::make_unique<FGenIntResultsFileEditor>(nullptr, FExpr<FGenIntResultsFile>(mpFile),
                                                            FExpr<FGenIntComputation>());
        mpPage->resize(size);
        mpPage->show();
        settle();
    }
    FGenIntResultsFileEditor& page() { return *mpPage; }

 private:
    FGenIntResultsFile* mpFile;
    std::unique_ptr<FGenIntResultsFileEditor> mpPage;
};

void show(benchmark::State& state) {
    double shown = 1e9;
    double bare = 1e9;
    double peak = 0;
    double barePeak = 0;
    sample();
    for (auto _ : state) {
        {
            FPage page;
            processMemory::resetPeak();
            const double before = processMemory::megabytes("VmRSS:");
            QElapsedTimer timer;
            timer.start();
            page.show();
            shown = std::min(shown, milliseconds(timer));
            peak = processMemory::megabytes("VmHWM:") - before;
        }
        processMemory::resetPeak();
        const double before = processMemory::megabytes("VmRSS:");
        QElapsedTimer timer;
        timer.start();
        QPlainTextEdit edit;
        edit.setUndoRedoEnabled(false);
        edit.setLineWrapMode(QPlainTextEdit::NoWrap);
        edit.resize(size);
        edit.setPlainText(sample());
        edit.show();
        settle();
        bare = std::min(bare, milliseconds(timer));
        barePeak = processMemory::megabytes("VmHWM:") - before;
    }
    state.counters["page_ms"] = shown;
    state.counters["bare_ms"] = bare;
    state.counters["ratio"] = shown / bare;
    state.counters["page_MB"] = peak;
    state.counters["bare_MB"] = barePeak;
}

/** Longest time from a key in a spin box until all is painted, and of the preview, and of a click on a number. */
void turn(benchmark::State& state) {
    FPage page;
    page.show();
    auto* spin = page.page().findChild<FSpinBox*>(state.range(0) ? QStringLiteral("line") : QStringLiteral("column"));
    auto* text = page.page().findChild<FGenIntResultsFileEdit*>();
    double longest = 0;
    double preview = 0;
    double pointed = 0;
    for (auto _ : state) {
        constexpr int steps = 30;
        for (int step = 0; step < steps; ++step) {
            QElapsedTimer timer;
            timer.start();
            QTest::keyClick(spin, step % 2 ? Qt::Key_Down : Qt::Key_Up);
            QCoreApplication::sendPostedEvents();
            text->viewport()->repaint();
            longest = std::max(longest, milliseconds(timer));
        }
        QElapsedTimer timer;
        timer.start();
        page.page().refreshResultsPreview();
        preview = std::max(preview, milliseconds(timer));
        timer.start();
        page.page().pointing().readNumberAt(sample().size() / 3);
        pointed = std::max(pointed, milliseconds(timer));
        FHistory::instance()->undo();
    }
    state.counters["step_ms"] = longest;
    state.counters["preview_ms"] = preview;
    state.counters["pointing_ms"] = pointed;
}

BENCHMARK(show)->Iterations(5)->Unit(benchmark::kMillisecond);
BENCHMARK(turn)->Arg(0)->Arg(1)->Iterations(3)->Unit(benchmark::kMillisecond);

}  // namespace
