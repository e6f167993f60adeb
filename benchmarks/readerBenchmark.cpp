// Reads values from the output of a program: from a text in memory, from one file, from many. For comparison, with the
// same work around it: a pass that only finds every line end (bare), which no reader can beat, and a separate search
// for each value (naive), where the text is small enough for it. Half of the anchors refer to their last occurrence;
// some values are above their anchor, some are averages.

#include "genericintegration/io/FGenIntReader.h"
#include "genericintegration/io/FValueSearch.h"
#include "genericintegration/templates/FGenIntResultsFile.h"
#include "host/core/FHistory.h"
#include "host/run/FResultText.h"
#include "host/run/FTableData.h"
#include "tests/genericintegration/io/FLiteralReader.h"

#include <benchmark/benchmark.h>

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QString>
#include <QTemporaryDir>

#include <algorithm>
#include <cstring>
#include <map>
#include <memory>
#include <random>
#include <vector>

namespace {

constexpr int anchorCount = 600;
constexpr int fileCount = 1000;

QByteArray anchorText(int number) {
    static const char* const quantities[] = {"Total force on part", "Heat flux through wall", "Max. stress in beam",
                                             "Drag coefficient of body"};
    return QByteArray(quantities[number % 4]) + " " + QByteArray::number(number) + " ";
}

/** Some lines of a solver's history, with a line of results here and there. Each line contains the unit. */
QByteArray makeText(qint64 size, const char* unit = "N", quint32 seed = 1) {
    std::mt19937 random(seed);
    QByteArray text;
    text.reserve(static_cast<int>(size) + 200);
    char line[160];
    for (int iteration = 1; text.size() < size; ++iteration) {
        const double residual = 1.0 / iteration + 1e-9 * random();
        if (iteration % 199 == 0) {
            text += "\n  *** " + anchorText(static_cast<int>(random() % anchorCount)).toUpper() + "= 12.5 N\n";
        }
        text.append(line,
                    std::snprintf(line, sizeof line, "  ITER %9d   residual  %14.6e   force %12.5f %s  stress %9.3f\n",
                                  iteration, residual, 100 * residual, unit, 3.5 + residual));
    }
    return text;
}

std::vector<FValueDescription> makeValues(qint64 count, qint64 anchors = anchorCount) {
    std::vector<FValueDescription> values(static_cast<size_t>(count));
    for (int i = 0; i < count; ++i) {
        FValueDescription& value = values[static_cast<size_t>(i)];
        value.name = QString::number(i);
        value.line = i % 9 == 0 ? -1 - i % 4 : i % 3;
        value.column = i % 4;
        if (i % 10 < 6) {
            value.anchor.text = QString::fromLatin1(anchorText(static_cast<int>(i * 7 % anchors)));
        }
        value.anchor.occurrence = i % 2 == 0 ? FAnchorOccurrence::First : FAnchorOccurrence::Last;
        value.average = i % 50 == 7;
        value.averageRows = 100;
    }
    return values;
}

/** Texts and files are made on first use and kept. */
const QByteArray& textOf(qint64 kilobytes) {
    static std::map<qint64, QByteArray> texts;
    QByteArray& text = texts[kilobytes];
    if (text.isEmpty()) {
        text = makeText(kilobytes * 1000);
    }
    return text;
}

QString writeFile(const QString& name, const QByteArray& bytes) {
    static const QTemporaryDir folder;
    QFile file(folder.filePath(name));
    QDir().mkpath(QFileInfo(file).path());
    file.open(QIODevice::WriteOnly);
    file.write(bytes);
    return file.fileName();
}

QString fileOf(qint64 kilobytes) {
    static std::map<qint64, QString> files;
    QString& file = files[kilobytes];
    if (file.isEmpty()) {
        file = writeFile(QString("of %1 KB").arg(kilobytes), textOf(kilobytes));
    }
    return file;
}

/** The summary that many programs print at the end of a run: all values in a few lines. */
QByteArray summaryOf(const std::vector<FValueDescription>& values) {
    QByteArray text;
    for (const FValueDescription& value : values) {
        if (!value.anchor.text.isEmpty()) {
            text += "  *** " + value.anchor.text.toUpper().toLatin1() + "= 12.5 N  13.5 N  14.5 N  15.5 N\n";
        }
    }
    return text;
}

const QStringList& manyFiles() {
    static const QStringList files = [] {
        QStringList names;
        for (int i = 0; i < fileCount; ++i) {
            names += writeFile(QString("design %1/run.log").arg(i),
                               makeText(50'000, "N", static_cast<quint32>(i)) + summaryOf(makeValues(50)));
        }
        return names;
    }();
    return files;
}

FFileBytes open(const QString& name) {
    auto file = std::make_unique<QFile>(name);
    file->open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    return FFileBytes(std::move(file));
}

qint64 countLineEnds(std::string_view text) {
    qint64 lines = 0;
    const char* const end = text.data() + text.size();
    for (const char* at = text.data(); at != nullptr && at < end; ++lines) {
        const void* const lineFeed = std::memchr(at, '\n', static_cast<size_t>(end - at));
        at = lineFeed != nullptr ? static_cast<const char*>(lineFeed) + 1 : nullptr;
    }
    return lines;
}

void readNaively(const QByteArray& bytes, const std::vector<FValueDescription>& values) {
    const QString content = FLiteralReader::decode(bytes);
    for (const FValueDescription& value : values) {
        benchmark::DoNotOptimize(FLiteralReader::find(content, value, {}).number);
    }
}

void setBytes(benchmark::State& state, qint64 bytes) {
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations()) * bytes);
}

void memoryBare(benchmark::State& state) {
    const QByteArray& text = textOf(state.range(0));
    for (auto _ : state) {
        benchmark::DoNotOptimize(countLineEnds({text.constData(), static_cast<size_t>(text.size())}));
    }
    setBytes(state, text.size());
}

void read(benchmark::State& state, const QByteArray& text, const std::vector<FValueDescription>& values) {
    const FValueSearch search(values, {});
    for (auto _ : state) {
        benchmark::DoNotOptimize(search.find(FResultText::fromFile(text)));
    }
    setBytes(state, text.size());
}

void memoryRead(benchmark::State& state) {
    read(state, textOf(state.range(1)), makeValues(state.range(0)));
}

void memoryNaive(benchmark::State& state) {
    const QByteArray& text = textOf(state.range(1));
    const std::vector<FValueDescription> values = makeValues(state.range(0));
    for (auto _ : state) {
        readNaively(text, values);
    }
    setBytes(state, text.size());
}

void anchorsRead(benchmark::State& state) {
    read(state, textOf(state.range(1)), makeValues(1000, state.range(0)));
}

/** Only the last characters of the anchors, which makes them short. */
void lengthsRead(benchmark::State& state) {
    std::vector<FValueDescription> values = makeValues(100);
    for (FValueDescription& value : values) {
        value.anchor.text = value.anchor.text.right(static_cast<int>(state.range(0)));
    }
    read(state, textOf(state.range(1)), values);
}

/** Short anchors that users choose: in each line, in few lines, in none. Alone, or among long ones. */
std::vector<FValueDescription> shortAnchors(int count) {
    static const char* const texts[] = {"Cd",   "= ",   "heat",   "Zn",     "lift =", "part", "Total",
                                        "*** ", "iter", "stress", "Cl",     "PMAX",   "eps",  "E+02",
                                        "drag", "ID",   "yaw",    "ITER 9", "kW",     "m1"};
    std::vector<FValueDescription> values(static_cast<size_t>(count));
    for (int i = 0; i < count; ++i) {
        values[static_cast<size_t>(i)].anchor.text = texts[i % std::ssize(texts)];
    }
    return values;
}
void shortRead(benchmark::State& state) {
    read(state, textOf(state.range(1)), shortAnchors(static_cast<int>(state.range(0))));
}
void mixedRead(benchmark::State& state) {
    std::vector<FValueDescription> values = makeValues(1000);
    const std::vector<FValueDescription> added = shortAnchors(static_cast<int>(state.range(0)));
    values.insert(values.end(), added.begin(), added.end());
    read(state, textOf(state.range(1)), values);
}

/** Means of the last rows, of each column. */
std::vector<FValueDescription> averagesOf(qint64 rows) {
    constexpr int columns = 4;
    std::vector<FValueDescription> values(columns);
    for (int i = 0; i < columns; ++i) {
        FValueDescription& value = values[static_cast<size_t>(i)];
        value.column = i;
        value.average = true;
        value.averageRows = static_cast<quint32>(rows);
    }
    return values;
}
void averagesRead(benchmark::State& state) {
    read(state, textOf(state.range(1)), averagesOf(state.range(0)));
}
void averagesNaive(benchmark::State& state) {
    for (auto _ : state) {
        readNaively(textOf(state.range(1)), averagesOf(state.range(0)));
    }
}

/** Each line contains a character that isn't ASCII; in Latin 1, it isn't valid UTF-8 either. */
void nonAsciiRead(benchmark::State& state) {
    read(state, makeText(state.range(1) * 1000, "\u00B5N"), makeValues(state.range(0)));
}
void latin1Read(benchmark::State& state) {
    read(state, makeText(state.range(1) * 1000, "\xB5N"), makeValues(state.range(0)));
}

void fileBare(benchmark::State& state) {
    const QString file = fileOf(state.range(0));
    for (auto _ : state) {
        benchmark::DoNotOptimize(countLineEnds(open(file).view()));
    }
    setBytes(state, textOf(state.range(0)).size());
}

void fileRead(benchmark::State& state) {
    const QString file = fileOf(state.range(1));
    const FValueSearch search(makeValues(state.range(0)), {});
    for (auto _ : state) {
        benchmark::DoNotOptimize(search.find(FResultText::fromFile(open(file))));
    }
    setBytes(state, textOf(state.range(1)).size());
}

void filesBare(benchmark::State& state) {
    const QStringList& files = manyFiles();
    for (auto _ : state) {
        for (const QString& file : files) {
            benchmark::DoNotOptimize(countLineEnds(open(file).view()));
        }
    }
}

/** The values are the same for all files. */
void filesRead(benchmark::State& state) {
    const FValueSearch search(makeValues(state.range(0)), {});
    const QStringList& files = manyFiles();
    for (auto _ : state) {
        for (const QString& file : files) {
            benchmark::DoNotOptimize(search.find(FResultText::fromFile(open(file))));
        }
    }
}

/** As in a study: with a result template, into tables. */
void filesParse(benchmark::State& state) {
    FPrototypes::buildPending();
    const FHistoryBlocker blocker;
    const FExpr<FGenIntResultsFile> results(FGenIntResultsFile::create("results"));
    results->setFileName("run.log");
    for (const FValueDescription& value : makeValues(state.range(0))) {
        const bool isFirst = value.anchor.occurrence == FAnchorOccurrence::First;
        results->addValue(value.name, value.line, value.column, value.anchor.text, isFirst ? "First" : "Last",
                          value.average, FExpr<FUnsigned>(new FUnsigned(value.averageRows)));
    }
    QStringList folders;
    for (const QString& file : manyFiles()) {
        folders += QFileInfo(file).path();
    }
    for (auto _ : state) {
        for (const QString& folder : folders) {
            FTableData table;
            FGenIntReader::instance()->parseFile(results, &table, folder);
            if (table.getRowCount() != state.range(0)) {
                qFatal("The benchmark can't read from %s.", qPrintable(folder));
            }
        }
    }
}

void filesNaive(benchmark::State& state) {
    const std::vector<FValueDescription> values = makeValues(state.range(0));
    const QStringList& files = manyFiles();
    for (auto _ : state) {
        for (const QString& name : files) {
            QFile file(name);
            file.open(QIODevice::ReadOnly);
            readNaively(file.readAll(), values);
        }
    }
}

void prepare(benchmark::State& state) {
    const std::vector<FValueDescription> values = makeValues(state.range(0));
    for (auto _ : state) {
        benchmark::DoNotOptimize(FValueSearch(values, {}));
    }
}

using benchmark::kMicrosecond;
using benchmark::kMillisecond;

}  // namespace

BENCHMARK(memoryBare)->Name("memory.bare")->ArgName("KB")->Arg(50)->Arg(1000)->Arg(5000)->Unit(kMicrosecond);
BENCHMARK(memoryRead)
    ->Name("memory.read")
    ->ArgNames({"values", "KB"})
    ->Args({10, 50})
    ->ArgsProduct({{10, 50, 100, 200, 400, 1000}, {5000}})
    ->Unit(kMicrosecond);
BENCHMARK(memoryNaive)
    ->Name("memory.naive")
    ->ArgNames({"values", "KB"})
    ->Args({10, 50})
    ->Args({10, 5000})
    ->Unit(kMicrosecond)
    ->Iterations(1);

BENCHMARK(memoryBare)->Name("anchors.bare")->ArgName("KB")->Arg(5000)->Unit(kMicrosecond);
BENCHMARK(anchorsRead)
    ->Name("anchors.read")
    ->ArgNames({"anchors", "KB"})
    ->ArgsProduct({{1, 10, 100, 300, 600}, {5000}})
    ->Unit(kMicrosecond);

BENCHMARK(memoryBare)->Name("lengths.bare")->ArgName("KB")->Arg(5000)->Unit(kMicrosecond);
BENCHMARK(lengthsRead)
    ->Name("lengths.read")
    ->ArgNames({"length", "KB"})
    ->ArgsProduct({{2, 3, 4, 6, 8, 9, 12, 16, 24}, {5000}})
    ->Unit(kMicrosecond);

BENCHMARK(memoryBare)->Name("short.bare")->ArgName("KB")->Arg(5000)->Unit(kMicrosecond);
BENCHMARK(shortRead)
    ->Name("short.read")
    ->ArgNames({"anchors", "KB"})
    ->ArgsProduct({{1, 2, 5, 10, 20}, {5000}})
    ->Unit(kMicrosecond);
BENCHMARK(memoryBare)->Name("mixed.bare")->ArgName("KB")->Arg(5000)->Unit(kMicrosecond);
BENCHMARK(mixedRead)
    ->Name("mixed.read")
    ->ArgNames({"short", "KB"})
    ->ArgsProduct({{0, 1, 5, 20}, {5000}})
    ->Unit(kMicrosecond);

BENCHMARK(memoryBare)->Name("averages.bare")->ArgName("KB")->Arg(5000)->Unit(kMicrosecond);
BENCHMARK(averagesRead)
    ->Name("averages.read")
    ->ArgNames({"rows", "KB"})
    ->ArgsProduct({{10, 100, 1000, 10'000, 50'000}, {5000}})
    ->Unit(kMicrosecond);
BENCHMARK(averagesNaive)
    ->Name("averages.naive")
    ->ArgNames({"rows", "KB"})
    ->ArgsProduct({{100, 10'000}, {5000}})
    ->Unit(kMicrosecond)
    ->Iterations(1);

BENCHMARK(memoryBare)->Name("nonAscii.bare")->ArgName("KB")->Arg(5000)->Unit(kMicrosecond);
BENCHMARK(nonAsciiRead)->Name("nonAscii.read")->ArgNames({"values", "KB"})->Args({50, 5000})->Unit(kMicrosecond);
BENCHMARK(latin1Read)->Name("nonAscii.latin1")->ArgNames({"values", "KB"})->Args({50, 5000})->Unit(kMicrosecond);

BENCHMARK(fileBare)->Name("file.bare")->ArgName("KB")->RangeMultiplier(10)->Range(10, 100'000)->Unit(kMillisecond);
BENCHMARK(fileRead)
    ->Name("file.read")
    ->ArgNames({"values", "KB"})
    ->ArgsProduct({{100, 1000}, {10, 100, 1000, 10'000, 100'000}})
    ->Unit(kMillisecond);

BENCHMARK(filesBare)->Name("files.bare")->Unit(kMillisecond);
BENCHMARK(filesRead)->Name("files.read")->ArgName("values")->Arg(1)->Arg(10)->Arg(50)->Unit(kMillisecond);
BENCHMARK(filesParse)->Name("files.parse")->ArgName("values")->Arg(1)->Arg(10)->Arg(50)->Unit(kMillisecond);
BENCHMARK(filesNaive)->Name("files.naive")->ArgName("values")->Arg(1)->Unit(kMillisecond)->Iterations(1);

BENCHMARK(prepare)->Name("prepare.read")->ArgName("values")->Arg(1)->Arg(10)->Arg(100)->Arg(1000)->Unit(kMicrosecond);
