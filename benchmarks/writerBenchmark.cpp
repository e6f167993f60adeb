// Writing input files, beside a bare copy of the same bytes around constant tags (the limit) and the slow model of the
// tests (the naive way: search anew for each tag). The argument is the number of names.

#include <benchmark/benchmark.h>

#include <QFile>
#include <QTemporaryDir>

#include <string>

#include "genericintegration/io/FTemplateKeys.h"
#include "genericintegration/io/FTemplateSubstitution.h"
#include "genericintegration/io/FUtf8Output.h"
#include "genericintegration/templates/FTemplateTags.h"
#include "tests/genericintegration/io/SlowTemplateModel.h"

namespace {

constexpr int largeSize = 30'000'000, largeTags = 10'000;
constexpr int smallSize = 20'000, smallTags = 7, designs = 1'000;
const QString value = "12.5";

QString keyOf(int name) {
    return QString("Group[0]|Sub group|entry %1").arg(name);
}

QStringList makeRows(int names) {
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

/// Lines of numbers with tags spread evenly over them.
QString makeTemplate(int size, int tags, int names) {
    const QString line = "  1.0000000E+00  2.5000000E-01  3.1415926E+00  4.0000000E+02\n";
    QString text;
    text.reserve(size + 100);
    for (int tag = 1; tag <= tags; ++tag) {
        while (text.size() < qint64(size) * tag / tags) {
            text += line;
        }
        text += FTemplateTags::tagOf(SlowTemplateModel::nameOfKey(keyOf(int(tag * 7919LL % names))));
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
               const FTemplateSubstitution::Observer& observer = nullptr) {
    QFile file(path);
    openForWriting(file);
    FUtf8Output output(file);
    FTemplateSubstitution substitution(
        keys, [](int) { return value; }, [&](QStringView piece) { output.write(piece); });
    substitution.setObserver(observer);
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

void largeBareCopy(benchmark::State& state) {
    const std::string text = makeTemplate(largeSize, largeTags, int(state.range(0))).toStdString();
    const Target target;
    for (auto _ : state) {
        copyAroundTags(text, value.toStdString(), target.path(0));
    }
}

void largeWriter(benchmark::State& state) {
    const QString text = makeTemplate(largeSize, largeTags, int(state.range(0)));
    const QStringList rows = makeRows(int(state.range(0)));
    const Target target;
    for (auto _ : state) {
        writeFile(text, makeKeys(rows), target.path(0));
    }
}

void largeWriterWithReport(benchmark::State& state) {
    const QString text = makeTemplate(largeSize, largeTags, int(state.range(0)));
    const QStringList rows = makeRows(int(state.range(0)));
    const Target target;
    for (auto _ : state) {
        qsizetype lines = 0;
        writeFile(text, makeKeys(rows), target.path(0), [&](const FTagReport& tag) { lines += tag.place.line; });
        benchmark::DoNotOptimize(lines);
    }
}

void largeNaive(benchmark::State& state) {
    const QString text = makeTemplate(largeSize, largeTags, int(state.range(0)));
    SlowTemplateModel model;
    for (const QString& row : makeRows(int(state.range(0)))) {
        model.table.insert(row, {value});
    }
    const Target target;
    for (auto _ : state) {
        QFile file(target.path(0));
        openForWriting(file);
        file.write(model.write(text, false).toUtf8());
    }
}

void designsBareCopy(benchmark::State& state) {
    const std::string text = makeTemplate(smallSize, smallTags, int(state.range(0))).toStdString();
    const Target target;
    for (auto _ : state) {
        for (int design = 0; design < designs; ++design) {
            copyAroundTags(text, value.toStdString(), target.path(design));
        }
    }
}

void designsWriter(benchmark::State& state) {
    const QString text = makeTemplate(smallSize, smallTags, int(state.range(0)));
    const FTemplateKeys keys = makeKeys(makeRows(int(state.range(0))));
    const Target target;
    for (auto _ : state) {
        for (int design = 0; design < designs; ++design) {
            writeFile(text, keys, target.path(design));
        }
    }
}

void buildKeys(benchmark::State& state) {
    const QStringList rows = makeRows(int(state.range(0)));
    for (auto _ : state) {
        benchmark::DoNotOptimize(makeKeys(rows).find(u"none"));
    }
}

}  // namespace

BENCHMARK(largeBareCopy)->Arg(1000)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(largeWriter)->Arg(30)->Arg(1000)->Arg(3000)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(largeWriterWithReport)->Arg(1000)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(largeNaive)->Arg(30)->Arg(1000)->Arg(3000)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(1);
BENCHMARK(designsBareCopy)->Arg(1000)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(designsWriter)->Arg(30)->Arg(1000)->Arg(3000)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(buildKeys)->Arg(30)->Arg(1000)->Arg(3000)->Unit(benchmark::kMicrosecond);
