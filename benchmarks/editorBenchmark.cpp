// The editors of templates, compared with a bare QPlainTextEdit with the same text. Each number is a counter: the times
// of single events matter, and not how often they can be repeated.

#include "benchmarks/processMemory.h"
#include "genericintegration/editors/FGenIntCommandFileEdit.h"
#include "genericintegration/editors/FGenIntCommandFileEditor.h"
#include "host/core/FHistory.h"
#include "host/core/FNumber.h"
#include "host/core/FUserStep.h"
#include "host/design/FEntryDef.h"
#include "host/gui/base/FFixedFont.h"
#include "host/script/FProject.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QClipboard>
#include <QElapsedTimer>
#include <QTextBlock>
#include <QtTest/QTest>

#include <memory>

namespace {

constexpr int manyLines = 500'000;
constexpr int manyKeys = 200;
constexpr int fewKeys = 3;  // a bare widget takes a second for each in a long line

double milliseconds(const QElapsedTimer& timer) {
    constexpr double million = 1e6;
    return static_cast<double>(timer.nsecsElapsed()) / million;
}

/** Lines of about 60 characters, with numbers; some have a tag. */
QString sample(int lines) {
    QString text;
    for (int i = 0; i < lines; ++i) {
        text += i % 100 == 0 ? QStringLiteral("node %1, <entry>force</entry>, thickness = 0.25, layer = 3\n").arg(i)
                             : QStringLiteral("node %1, 0.1250, thickness = 0.25, layer = 3, end of it\n").arg(i);
    }
    return text;
}

QString longLine() {
    constexpr int size = 4 << 20;
    return QStringLiteral("first\n") + QStringLiteral("a = 1.5, ").repeated(size / 9) + QStringLiteral("\nlast\n");
}

/** Both of these have the same parts: a text that is shown, and an editor to type into. */
struct Bare {
    explicit Bare(const QString& text) {
        mEdit.setUndoRedoEnabled(false);
        mEdit.setLineWrapMode(QPlainTextEdit::NoWrap);
        mEdit.setFont(FFixedFont::get());
        mEdit.resize(1000, 800);
        mEdit.setPlainText(text);
        mEdit.show();
    }
    QPlainTextEdit& edit() { return mEdit; }
    QWidget& window() { return mEdit; }
    double write() { return 0; }
    double rename() { return 0; }
    void undo() { mEdit.setPlainText(QStringLiteral("first\nlast\n")); }

 private:
    QPlainTextEdit mEdit;
};

struct Template {
    explicit Template(const QString& text) {
        FProject::instance()->create();
        {
            const FHistoryBlocker blocker;
            mpDefinition = FDefinitionGenInt::create({}, QStringLiteral("d"), {});
            mpFile = FGenIntCommandFile::create(QStringLiteral("f"));
            mpFile->setContent(text);
            mpDefinition->addFile(FExpr<FGenIntFile>(mpFile));
            mpEntry = FEntryDef::create(QStringLiteral("force"), mpDefinition, 1, 1, false, true, {},
                                        FExprBase(new FDouble(1)));
        }
        mpPage = std::make_unique<FGenIntCommandFileEditor>(nullptr, FExpr<FGenIntCommandFile>(mpFile),
                                                            FExpr<FGenIntComputation>());
        mpPage->buffer().setDelay(1'000'000);
        mpPage->resize(1000, 800);
        mpPage->show();
    }
    ~Template() {
        mpPage.reset();
        FProject::instance()->create();
    }
    QPlainTextEdit& edit() { return mpPage->edit(); }
    QWidget& window() { return *mpPage; }
    /** Writes what was typed; time until nothing is left to do. */
    double write() {
        QElapsedTimer timer;
        timer.start();
        mpPage->buffer().commitEdit();
        return milliseconds(timer);
    }
    void undo() { FHistory::instance()->undo(); }
    /** Renames the entry, which changes a hundredth of the lines. */
    double rename() {
        QElapsedTimer timer;
        timer.start();
        {
            const FUserStep step(QStringLiteral("rename"));
            mpEntry->setName(QStringLiteral("load"));
        }
        return milliseconds(timer);
    }

 private:
    FDefinitionGenInt* mpDefinition;
    FGenIntCommandFile* mpFile;
    FEntryDef* mpEntry;
    std::unique_ptr<FGenIntCommandFileEditor> mpPage;
};

/** Handles all events, and gives the longest time of one round. */
double settle() {
    double longest = 0;
    constexpr int rounds = 20;
    for (int round = 0; round < rounds; ++round) {
        QElapsedTimer timer;
        timer.start();
        QCoreApplication::processEvents();
        longest = std::max(longest, milliseconds(timer));
    }
    return longest;
}

template <class Editor>
void show(benchmark::State& state, const QString& text, int keys) {
    for (auto _ : state) {
        processMemory::resetPeak();
        QElapsedTimer timer;
        timer.start();
        Editor editor(text);
        editor.window().grab();
        state.counters["show_ms"] = milliseconds(timer);
        settle();
        state.counters["peak_MB"] = processMemory::megabytes("VmHWM:");

        QPlainTextEdit& edit = editor.edit();
        QTextCursor cursor(edit.document());
        cursor.setPosition(edit.document()->firstBlock().next().position());
        edit.setTextCursor(cursor);
        settle();
        double sum = 0;
        double longest = 0;
        for (int key = 0; key < keys; ++key) {
            timer.restart();
            QTest::keyClick(&edit, key % 8 == 7 ? Qt::Key_Return : Qt::Key_1);
            QCoreApplication::processEvents();
            sum += milliseconds(timer);
            longest = std::max(longest, milliseconds(timer));
        }
        state.counters["key_ms"] = sum / keys;
        state.counters["key_longest_ms"] = longest;
        const std::size_t history = FHistory::instance()->getSize();
        state.counters["write_ms"] = editor.write();
        state.counters["history_bytes"] = static_cast<double>(FHistory::instance()->getSize() - history);
        state.counters["peak_after_write_MB"] = processMemory::megabytes("VmHWM:");
        settle();
        timer.restart();
        edit.moveCursor(QTextCursor::End);
        state.counters["to_end_ms"] = milliseconds(timer) + settle();
        state.counters["rename_ms"] = editor.rename();
        settle();
    }
}

/** Pastes a text, waits, and takes it back. */
template <class Editor>
void paste(benchmark::State& state, const QString& text) {
    for (auto _ : state) {
        Editor editor(QStringLiteral("first\nlast\n"));
        editor.window().grab();
        settle();
        QApplication::clipboard()->setText(text);
        QElapsedTimer timer;
        timer.start();
        editor.edit().paste();
        state.counters["paste_ms"] = milliseconds(timer);
        state.counters["paint_ms"] = settle();
        state.counters["write_ms"] = editor.write();
        state.counters["settle_ms"] = settle();
        timer.restart();
        editor.undo();
        state.counters["undo_ms"] = milliseconds(timer);
        state.counters["settle_after_undo_ms"] = settle();
    }
}

template <class Editor>
void pastedLines(benchmark::State& state) {
    constexpr int lines = 400'000;
    paste<Editor>(state, sample(lines));
}

template <class Editor>
void pastedLongLine(benchmark::State& state) {
    paste<Editor>(state, longLine());
}

template <class Editor>
void manyLinesText(benchmark::State& state) {
    show<Editor>(state, sample(manyLines), manyKeys);
}

template <class Editor>
void longLineText(benchmark::State& state) {
    show<Editor>(state, longLine(), fewKeys);
}

BENCHMARK_TEMPLATE(manyLinesText, Bare)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK_TEMPLATE(manyLinesText, Template)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK_TEMPLATE(longLineText, Bare)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK_TEMPLATE(longLineText, Template)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK_TEMPLATE(pastedLines, Bare)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK_TEMPLATE(pastedLines, Template)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK_TEMPLATE(pastedLongLine, Bare)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK_TEMPLATE(pastedLongLine, Template)->Iterations(1)->Unit(benchmark::kMillisecond);

}  // namespace
