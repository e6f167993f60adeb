// Reads exchange files with many parts into a new project: set-ups that all use results of the first one, and entries
// of one definition. For comparison, the script that makes the same objects.

#include "host/core/FHistory.h"
#include "host/core/FObjectManager.h"
#include "host/core/FPrototypes.h"
#include "host/core/FUserStep.h"
#include "host/lodm/FImport.h"
#include "host/run/FExternComputation.h"
#include "host/script/FCmdInput.h"
#include "host/script/FProject.h"

#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QTemporaryDir>
#include <QTextStream>

namespace {

void execute(QString script) {
    QTextStream stream(&script);
    FCmdInput input;
    input.readInputString(stream);
    input.exec();
}

/** A new project; the first one with all classes known. */
void createProject() {
    static int count = 1;
    static char name[] = "exchangeBenchmark";
    static char* arguments[] = {name, nullptr};
    static const QCoreApplication application(count, arguments);
    FPrototypes::buildPending();
    FProject::instance()->create();
}

QString setUps(qint64 count) {
    const QString one = QStringLiteral(
        "genericIntegrationCommandFile in%1() { .setFileName(\"case.inp\")\n"
        ".setContent(\"length = <entry>length</entry>\\nload = <entry>load</entry>\\n\") }\n"
        "genericIntegrationResultsFile out%1() { .setFileName(\"case.out\") .setContent(\"mass = 1.5\\nforce = "
        "2.5\\n\")\n"
        ".setValues([[\"mass\", 0, 0, \"mass\", First, \"FDouble\", \"\", 0, NULL],"
        "[\"force\", 0, 0, \"force\", Last, \"FDouble\", \"\", 0, NULL]]) }\n"
        "genericIntegrationDefinition definition%1() { .addEntry(\"length\", 2.5) .addEntry(\"load\", 10)"
        " .setFiles([in%1, out%1]) }\n"
        "genericIntegrationConfiguration values%1() { .setDefinition(definition%1); .setEntryValue(\"load\", %2) }\n"
        "genericIntegrationComputation solver%1() { .setConfiguration(values%1); .setExecutable(\"solver\") }\n");
    QString script;
    for (qint64 number = 0; number < count; ++number) {
        script += one.arg(
            QString::number(number),
            number == 0 ? QStringLiteral("12") : QStringLiteral("solver0.getResults().getDataAt(\"force\", 0)"));
    }
    return script;
}

QString entries(qint64 count) {
    QString script = QStringLiteral("genericIntegrationDefinition definition0() {\n");
    for (qint64 number = 0; number < count; ++number) {
        script += QStringLiteral(".addEntry(\"group %1|entry %2\", %2.5)\n").arg(number / 100).arg(number);
    }
    return script + QStringLiteral(
                        "}\ngenericIntegrationConfiguration values0() { .setDefinition(definition0) }\n"
                        "genericIntegrationComputation solver0() { .setConfiguration(values0) }\n");
}

void build(const QString& script) {
    const FUserStep step(QStringLiteral("build"));
    execute(script);
}

void make(benchmark::State& state, QString (*script)(qint64 count)) {
    const QString text = script(state.range(0));
    for (auto _ : state) {
        state.PauseTiming();
        createProject();
        state.ResumeTiming();
        build(text);
    }
}

void import(benchmark::State& state, QString (*script)(qint64 count)) {
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("parts.lodm"));
    createProject();
    build(script(state.range(0)));
    execute(QStringLiteral("solver0.exportSetUp(\"%1\", true)").arg(file));
    const auto count = [] { return FObjectManager::instance()->getManaged(FExternComputation::null()).size(); };
    const auto wanted = count();
    for (auto _ : state) {
        state.PauseTiming();
        createProject();
        const std::unique_ptr<FImport> reader = FImport::forFile(file);
        state.ResumeTiming();
        reader->read(file, false);
        if (reader->getFaultCount() > 0 || count() != wanted) {
            qFatal("The benchmark can't import %s.", qPrintable(file));
        }
    }
}

void setUpsScript(benchmark::State& state) {
    make(state, &setUps);
}
void setUpsImport(benchmark::State& state) {
    import(state, &setUps);
}
void entriesScript(benchmark::State& state) {
    make(state, &entries);
}
void entriesImport(benchmark::State& state) {
    import(state, &entries);
}

void sizesOfSetUps(benchmark::internal::Benchmark* bench) {
    bench->ArgName("setUps")->Arg(10)->Arg(100)->Arg(300)->Arg(1000)->Unit(benchmark::kMillisecond);
}
void sizesOfEntries(benchmark::internal::Benchmark* bench) {
    bench->ArgName("entries")->Arg(100)->Arg(1000)->Arg(10'000)->Arg(50'000)->Unit(benchmark::kMillisecond);
}

}  // namespace

BENCHMARK(setUpsScript)->Name("setUps.script")->Apply(&sizesOfSetUps);
BENCHMARK(setUpsImport)->Name("setUps.import")->Apply(&sizesOfSetUps);
BENCHMARK(entriesScript)->Name("entries.script")->Apply(&sizesOfEntries);
BENCHMARK(entriesImport)->Name("entries.import")->Apply(&sizesOfEntries);
