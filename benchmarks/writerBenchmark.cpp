// Writes input files. For comparison: a bare copy of the same bytes around constant tags, which no writer can beat, and
// the slow model of the tests, which searches the table for each tag.

#include "genericintegration/io/FGenIntWriter.h"
#include "genericintegration/io/FTemplateKeys.h"
#include "genericintegration/io/FTemplateSubstitution.h"
#include "genericintegration/io/FUtf8Output.h"
#include "genericintegration/setup/FConfigurationGenInt.h"
#include "genericintegration/setup/FDefinitionGenInt.h"
#include "genericintegration/templates/FGenIntCommandFile.h"
#include "genericintegration/templates/FTemplateTags.h"
#include "host/core/FHistory.h"
#include "host/core/FNumber.h"
#include "host/core/FPrototypes.h"
#include "host/design/FEntryDef.h"
#include "tests/genericintegration/io/SlowTemplateModel.h"

#include <benchmark/benchmark.h>

#include <QFile>
#include <QTemporaryDir>

#include <memory>
#include <string>

namespace {

constexpr int smallSize = 20'000, smallTags = 7, designs = 1'000;
const QString value = "12.5";
const QString numbers = "  1.0000000E+00  2.5000000E-01  3.1415926E+00  4.0000000E+02\n";
const QString markup = "<node id=\"1001\"><x>1.25</x><y>0.5</y><entity/><z>-3.0</z></node>\n";

QString keyOf(int name) {
    return QString("Group[0]|Sub group|entry %1").arg(name);
}

QStringList makeRows(qint64 names) {
    QStringList rows;
    for (int name = 0; name < names; ++name) {
        rows.append(keyOf(name));
    }
    rows.sort();
    return rows;
}

FTemplateKeys makeKeys(const QStringList& rows) {
    FTemplateKeys keys;
    for (const QString& row : rows) {
        keys.append(row, true);
    }
    return keys;
}

/** Repeats the line, with tags spread evenly over the text. */
QString makeTemplate(qint64 size, qint64 tags, qint64 names, const QString& line = numbers) {
    QString text;
    text.reserve(int(size + 100));
    for (qint64 tag = 1; tag <= tags; ++tag) {
        while (text.size() < size * tag / tags) {
            text += line;
        }
        text += FTemplateTags::tagOf(SlowTemplateModel::nameOfKey(keyOf(int(tag * 7919 % names))));
    }
    return text;
}

class Target {
 public:
    QString path(int design) const { return mFolder.filePath(QString("input%1.dat").arg(design)); }

 private:
    QTemporaryDir mFolder;
};

void openForWriting(QFile& file) {
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) {
        qFatal("The benchmark can't write to %s.", qPrintable(file.fileName()));
    }
}

void writeFile(const QString& text, const FTemplateKeys& keys, const QString& path,
               bool forceWindowsLineEndings = false) {
    QFile file(path);
    openForWriting(file);
    FUtf8Output output(file);
    FTemplateSubstitution substitution(
        keys, [](int) { return value; }, [&](QStringView piece) { output.write(piece); });
    substitution.setForceWindowsLineEndings(forceWindowsLineEndings);
    substitution.setObserver([](const FTagReport& report) { benchmark::DoNotOptimize(report.outcome); });
    substitution.run(text);
    output.finish();
}

void copyAroundTags(const std::string& text, const std::string& constant, const QString& path) {
    QFile file(path);
    openForWriting(file);
    std::string gathered;
    const auto add = [&](const char* data, std::size_t size) {
        gathered.append(data, size);
        if (gathered.size() > 65536) {
            file.write(gathered.data(), qint64(gathered.size()));
            gathered.clear();
        }
    };
    std::size_t copied = 0;
    for (std::size_t tag = text.find("<entry>"); tag != std::string::npos; tag = text.find("<entry>", copied)) {
        add(text.data() + copied, tag - copied);
        add(constant.data(), constant.size());
        copied = text.find("</entry>", tag) + 8;
    }
    add(text.data() + copied, text.size() - copied);
    file.write(gathered.data(), qint64(gathered.size()));
}

struct Sizes {
    explicit Sizes(const benchmark::State& state)
        : bytes(state.range(0) * 1000), tags(state.range(1)), names(state.range(2)) {}
    qint64 bytes, tags, names;
};

void bare(benchmark::State& state, const QString& line) {
    const std::string text = makeTemplate(state.range(0) * 1000, state.range(1), 1000, line).toStdString();
    const Target target;
    for (auto _ : state) {
        copyAroundTags(text, value.toStdString(), target.path(0));
    }
}

void write(benchmark::State& state, const QString& line, bool forceWindowsLineEndings) {
    const Sizes sizes(state);
    const QString text = makeTemplate(sizes.bytes, sizes.tags, sizes.names, line);
    const FTemplateKeys keys = makeKeys(makeRows(sizes.names));
    const Target target;
    for (auto _ : state) {
        writeFile(text, keys, target.path(0), forceWindowsLineEndings);
    }
}

void naive(benchmark::State& state) {
    const Sizes sizes(state);
    const QString text = makeTemplate(sizes.bytes, sizes.tags, sizes.names);
    SlowTemplateModel model;
    for (const QString& row : makeRows(sizes.names)) {
        model.table.insert(row, {value});
    }
    const Target target;
    for (auto _ : state) {
        QFile file(target.path(0));
        openForWriting(file);
        file.write(model.write(text, false).toUtf8());
    }
}

/** A study has a new folder for each design, so its files are new as well. */
template <class Write>
void writeDesigns(benchmark::State& state, Write write) {
    for (auto _ : state) {
        state.PauseTiming();
        auto target = std::make_unique<Target>();
        state.ResumeTiming();
        for (int design = 0; design < designs; ++design) {
            write(target->path(design));
        }
        state.PauseTiming();
        target.reset();
        state.ResumeTiming();
    }
}

void designsBare(benchmark::State& state) {
    const std::string text = makeTemplate(smallSize, smallTags, 1000).toStdString();
    writeDesigns(state, [&text](const QString& path) { copyAroundTags(text, value.toStdString(), path); });
}

void designsWrite(benchmark::State& state) {
    const QString text = makeTemplate(smallSize, smallTags, state.range(0));
    const FTemplateKeys keys = makeKeys(makeRows(state.range(0)));
    writeDesigns(state, [&](const QString& path) { writeFile(text, keys, path); });
}

/** A definition with one template, and a configuration of it. */
class Study {
 public:
    Study(int entries, const QString& text) {
        mDefinition->addFile(FExpr<FGenIntFile>(mFile));
        mFile->setContent(text);
        FEntryDef* group = FEntryDef::create("Group", mDefinition, 1, 2, false, false, {}, {});
        group = FEntryDef::create("Sub group", group, 1, 1, false, false, {}, {});
        for (int entry = 0; entry < entries; ++entry) {
            FEntryDef::create(QString("entry %1").arg(entry), group, 1, 1, false, true, {}, FExprBase(new FDouble(1)));
        }
        mConfiguration->setDefinition(FExpr<FDefinition>(mDefinition));
    }

    void setValue(double number) { mConfiguration->setEntryValue(keyOf(0), FExprBase(new FDouble(number))); }
    void setFileName(const QString& name) { mFile->setFileName(name); }
    void write(const QString& directory) const {
        if (!FGenIntWriter::instance()->exportCommandFiles(FExpr<FConfiguration>(mConfiguration), directory)) {
            qFatal("The benchmark can't write to %s.", qPrintable(directory));
        }
    }

 private:
    const FHistoryBlocker mBlocker;
    FGenIntCommandFile* mFile = FGenIntCommandFile::create("file");
    FDefinitionGenInt* mDefinition = FDefinitionGenInt::create({}, "definition", {});
    FConfigurationGenInt* mConfiguration = FConfigurationGenInt::create({}, "configuration", false, nullptr);
};

/** As in a study: after one value has changed. The names start like those of the bare copies. */
void designsExport(benchmark::State& state) {
    FPrototypes::buildPending();
    Study study(int(state.range(0)), makeTemplate(smallSize, smallTags, state.range(0)));
    study.setFileName("input.dat");
    double number = 0;
    writeDesigns(state, [&](const QString& path) {
        study.setValue(++number);
        study.write(path);
    });
}

void build(benchmark::State& state) {
    const QStringList rows = makeRows(state.range(0));
    for (auto _ : state) {
        benchmark::DoNotOptimize(makeKeys(rows).find(u"none"));
    }
}

using benchmark::kMicrosecond;
using benchmark::kMillisecond;

const std::vector<std::string> sizeNames{"KB", "tags", "names"};

}  // namespace

BENCHMARK_CAPTURE(bare, size, numbers)
    ->Name("template.bare")
    ->ArgNames({"KB", "tags"})
    ->ArgsProduct({{30'000}, {10, 100, 1000, 10'000, 100'000}})
    ->ArgsProduct({{30, 300, 3000}, {100}})
    ->Unit(kMillisecond);
BENCHMARK_CAPTURE(write, size, numbers, false)
    ->Name("template.write")
    ->ArgNames(sizeNames)
    ->ArgsProduct({{30'000}, {10'000}, {30, 300, 1000, 3000}})
    ->ArgsProduct({{30'000}, {10, 100, 1000, 100'000}, {1000}})
    ->ArgsProduct({{30, 300, 3000}, {100}, {1000}})
    ->Unit(kMillisecond);
BENCHMARK_CAPTURE(write, crlf, numbers, true)
    ->Name("template.writeCrLf")
    ->ArgNames(sizeNames)
    ->Args({30'000, 10'000, 1000})
    ->Unit(kMillisecond);
BENCHMARK(naive)
    ->Name("template.naive")
    ->ArgNames(sizeNames)
    ->ArgsProduct({{30'000}, {10'000}, {30, 1000, 3000}})
    ->Iterations(1)
    ->Unit(kMillisecond);
BENCHMARK_CAPTURE(bare, markup, markup)
    ->Name("markup.bare")
    ->ArgNames({"KB", "tags"})
    ->Args({30'000, 10'000})
    ->Unit(kMillisecond);
BENCHMARK_CAPTURE(write, markup, markup, false)
    ->Name("markup.write")
    ->ArgNames(sizeNames)
    ->Args({30'000, 10'000, 1000})
    ->Unit(kMillisecond);
BENCHMARK(designsBare)->Name("designs.bare")->Unit(kMillisecond);
BENCHMARK(designsWrite)->Name("designs.write")->ArgName("names")->Arg(30)->Arg(1000)->Unit(kMillisecond);
BENCHMARK(designsExport)
    ->Name("designs.export")
    ->ArgName("names")
    ->RangeMultiplier(10)
    ->Range(10, 10'000)
    ->Unit(kMillisecond);
BENCHMARK(build)->Name("keys.build")->ArgName("names")->Arg(10)->Arg(100)->Arg(1000)->Arg(10'000)->Unit(kMicrosecond);
