// Reads values from the output of a program. Beside it: a pass that only finds every line end, which no reader can
// beat, and a search anew for each value, on a text small enough that it ends.

#include <benchmark/benchmark.h>

#include <QByteArray>
#include <QString>
#include <QTextStream>

#include <cstring>
#include <random>
#include <vector>

#include "genericintegration/io/FAnchor.h"
#include "genericintegration/io/FNumberPattern.h"
#include "genericintegration/io/FResultText.h"
#include "genericintegration/io/FValueSearch.h"
#include "genericintegration/io/findValue.h"

namespace {

constexpr int AnchorCount = 600;

QByteArray anchorText(int number) {
    static const char* const quantities[] = {"Total force on part", "Heat flux through wall", "Max. stress in beam",
                                             "Drag coefficient of body"};
    return QByteArray(quantities[number % 4]) + " " + QByteArray::number(number) + " ";
}

/// Some lines of a solver's history, with a line of results here and there.
QByteArray makeText(qint64 size) {
    std::mt19937 random(1);
    QByteArray text;
    text.reserve(static_cast<int>(size) + 200);
    char line[160];
    for (int iteration = 1; text.size() < size; ++iteration) {
        const double residual = 1.0 / iteration + 1e-9 * random();
        if (iteration % 199 == 0)
            text += "\n  *** " + anchorText(static_cast<int>(random() % AnchorCount)).toUpper() + "= 12.5 N\n";
        text.append(line,
                    std::snprintf(line, sizeof line, "  ITER %9d   residual  %14.6e   force %12.5f  stress %9.3f\n",
                                  iteration, residual, 100 * residual, 3.5 + residual));
    }
    return text;
}

std::vector<FValueDescription> makeValues(int count) {
    std::vector<FValueDescription> values(static_cast<size_t>(count));
    for (int i = 0; i < count; ++i) {
        FValueDescription& value = values[static_cast<size_t>(i)];
        value.name = QString::number(i);
        value.line = i % 9 == 0 ? -1 - i % 4 : i % 3;
        value.column = i % 4;
        if (i % 10 < 6)
            value.anchor.text = QString::fromLatin1(anchorText(i * AnchorCount / count));
        value.anchor.occurrence = i % 2 == 0 ? FAnchorOccurrence::First : FAnchorOccurrence::Last;
        value.average = i % 50 == 7;
        value.averageRows = 100;
    }
    return values;
}

const QByteArray& textOf(const benchmark::State& state) {
    static QByteArray text;
    static qint64 kilobytes = 0;
    if (kilobytes != state.range(1)) {
        kilobytes = state.range(1);
        text = makeText(kilobytes * 1000);
    }
    return text;
}

void read(benchmark::State& state) {
    const QByteArray& bytes = textOf(state);
    const FValueSearch search(makeValues(static_cast<int>(state.range(0))), {});
    for (auto _ : state)
        benchmark::DoNotOptimize(search.find(FResultText::fromFile(bytes)));
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations()) * bytes.size());
}

void findLineEnds(benchmark::State& state) {
    const QByteArray& bytes = textOf(state);
    const char* const end = bytes.constData() + bytes.size();
    for (auto _ : state) {
        qint64 lines = 0;
        for (const char* at = bytes.constData(); at != nullptr && at < end; ++lines) {
            const void* const lineFeed = std::memchr(at, '\n', static_cast<size_t>(end - at));
            at = lineFeed != nullptr ? static_cast<const char*>(lineFeed) + 1 : nullptr;
        }
        benchmark::DoNotOptimize(lines);
    }
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations()) * bytes.size());
}

double readAnew(const QString& content, const FValueDescription& value) {
    QString text = content;
    const int position = getAnchorPosition(value.anchor, content);
    if (position >= 0 && value.line < 0)
        text = content.left(content.lastIndexOf('\n', position));
    else if (position >= 0)
        text = content.mid(position + value.anchor.text.size());
    QTextStream stream(&text);
    QStringList lines;
    while (!stream.atEnd() && (value.line < 0 || lines.size() <= value.line))
        lines += stream.readLine();
    const QString line = lines.value(value.line < 0 ? lines.size() + value.line : value.line);
    int start = 0;
    int length = 0;
    QRegExp separator;
    findValue(start, length, separator, value.line, {}, line, value.column, true);
    return line.mid(start, length).toDouble();
}

void readEachAnew(benchmark::State& state) {
    const QByteArray& bytes = textOf(state);
    const std::vector<FValueDescription> values = makeValues(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        const QString content = QString::fromUtf8(bytes);
        for (const FValueDescription& value : values)
            benchmark::DoNotOptimize(readAnew(content, value));
    }
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations()) * bytes.size());
}

void prepare(benchmark::State& state) {
    for (auto _ : state)
        benchmark::DoNotOptimize(FValueSearch(makeValues(static_cast<int>(state.range(0))), {}));
}

}  // namespace

BENCHMARK(findLineEnds)->ArgNames({"", "KB"})->Args({0, 100000})->Args({0, 5000})->Args({0, 50});
BENCHMARK(read)->ArgNames({"values", "KB"})->Args({1000, 100000})->Args({50, 5000})->Args({400, 5000})->Args({10, 50});
BENCHMARK(readEachAnew)
    ->ArgNames({"values", "KB"})
    ->Args({1000, 1000})
    ->Args({50, 5000})
    ->Unit(benchmark::kMillisecond);
BENCHMARK(prepare)->ArgName("values")->Arg(10)->Arg(50)->Arg(1000);
