#include "genericintegration/connector/FSoftConScene.h"
#include "genericintegration/connector/FSoftConView.h"
#include "genericintegration/connector/FSoftwareConnector.h"
#include "host/core/FHistory.h"
#include "host/core/FObjectManager.h"
#include "host/core/FUserInterface.h"
#include "host/core/FUserStep.h"
#include "host/gui/window/FDocumentTabs.h"
#include "host/gui/window/FMainWindow.h"
#include "host/gui/window/FWindowUserInterface.h"
#include "host/script/FCmdInput.h"
#include "host/script/FProject.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QScrollBar>

namespace {

constexpr int manyItems = 1000;
const char* const sizes[] = {"Large", "Medium", "Small"};

void settle() {
    constexpr int rounds = 5;
    for (int round = 0; round < rounds; ++round) {
        QCoreApplication::processEvents();
    }
}

void execute(QString script) {
    QTextStream stream(&script);
    FCmdInput input;
    input.readInputString(stream);
    input.exec();
}

template <class T>
T* object(const char* name) {
    return dynamic_cast<T*>(FObjectManager::instance()->find(QString::fromLatin1(name)));
}

/**
 * A shown connector with that many items: half of them geometry, half of them input files, and a template that uses all
 * of them.
 */
class Connector {
 public:
    explicit Connector(int items, const char* size) {
        FProject::instance()->create();
        FUserInterface::replace(&mInterface);
        mWindow.resize(1480, 920);
        mWindow.show();
        QString script = QStringLiteral("softwareConnector c()\nc.setItemSize(%1)\npoint p(1, 2, 3)\n").arg(size);
        QString tags;
        for (int item = 0; item < items / 2; ++item) {
            tags += QStringLiteral("<entry>Exports|in%1</entry><entry>Exports|geo%1</entry>").arg(item);
            script +=
                QStringLiteral("definitionGenInt.addEntry(\"Exports|in%1\", inputFile(\"in%1.dat\"))\n").arg(item);
            script +=
                QStringLiteral("definitionGenInt.addEntry(\"Exports|geo%1\", geometryExport(\"%1.csv\"))\n").arg(item);
        }
        script += QStringLiteral(
                      "genericIntegrationCommandFile all() { .setFileName(\"all.inp\") .setContent(\"%1\") }\n"
                      "definitionGenInt.setFiles([all])\n")
                      .arg(tags);
        const FUserStep step(QStringLiteral("build"));
        execute(script);
    }
    ~Connector() {
        FUserInterface::replace(nullptr);
        FProject::instance()->create();
    }

    FSoftwareConnector& get() { return *object<FSoftwareConnector>("c"); }
    void show() {
        get().showConnector();
        settle();
    }
    void hide() {
        mWindow.documents().closeAll();
        settle();
    }

 private:
    FMainWindow mWindow;
    FWindowUserInterface mInterface{mWindow};
};

void layOut(benchmark::State& state) {
    Connector connector(manyItems, sizes[state.range(0)]);
    connector.show();
    FSoftConScene& scene = *connector.get().getScene();
    state.counters["items"] = scene.objectItems().size();
    for (auto _ : state) {
        scene.setRedrawRequired(true);
        scene.redraw();
    }
}

void repaint(benchmark::State& state) {
    Connector connector(manyItems, sizes[state.range(0)]);
    connector.show();
    if (!connector.get().getView()->isVisible()) {
        state.SkipWithError("the view isn't shown");
    }
    for (auto _ : state) {
        connector.get().getView()->viewport()->repaint();
    }
}

void scroll(benchmark::State& state) {
    Connector connector(manyItems, sizes[state.range(0)]);
    connector.show();
    QScrollBar* bar = connector.get().getView()->horizontalScrollBar();
    int step = 0;
    for (auto _ : state) {
        bar->setValue(bar->minimum() + 50 * ++step % std::max(1, bar->maximum() - bar->minimum()));
        QCoreApplication::processEvents();
    }
}

/** An entry gets another file. */
void changeOne(benchmark::State& state) {
    Connector connector(manyItems, sizes[state.range(0)]);
    connector.show();
    int number = 0;
    for (auto _ : state) {
        execute(QStringLiteral("configurationGenInt.setEntryValue(\"Exports|in3\", inputFile(\"%1/in3.dat\"))")
                    .arg(++number % 2));
        settle();
    }
}

/** An item comes and goes. */
void addOne(benchmark::State& state) {
    Connector connector(manyItems, sizes[state.range(0)]);
    connector.show();
    FSoftConScene& scene = *connector.get().getScene();
    for (auto _ : state) {
        scene.addFile();
        settle();
        scene.deleteItem(scene.objectItems().last());
        settle();
    }
}

void updateAll(benchmark::State& state) {
    Connector connector(manyItems, sizes[state.range(0)]);
    connector.show();
    for (auto _ : state) {
        connector.get().getScene()->refreshEntryItems();
        settle();
    }
}

/** Opens a connector with ten templates of that size in MB. */
void open(benchmark::State& state) {
    const QString line = QStringLiteral("node 1 <entry>a</entry> 0.00000000E+00 1.00000000E+00\n");
    constexpr int megabyte = 1048576;
    Connector connector(0, "Medium");
    {
        const FHistoryBlocker blocker;
        const QString text = line.repeated(1 + static_cast<int>(state.range(0)) * (megabyte / line.size()));
        for (int number = 0; number < 10; ++number) {
            connector.get().addInputTemplateFromString(text + QString::number(number), QString::number(number));
        }
    }
    // What the window does with the project itself, such as looking for problems.
    settle();
    for (auto _ : state) {
        connector.show();
        state.PauseTiming();
        connector.hide();
        state.ResumeTiming();
    }
}

BENCHMARK(layOut)->DenseRange(0, 2)->Unit(benchmark::kMillisecond);
BENCHMARK(repaint)->DenseRange(0, 2)->Unit(benchmark::kMillisecond);
BENCHMARK(scroll)->DenseRange(0, 2)->Unit(benchmark::kMillisecond);
BENCHMARK(changeOne)->DenseRange(0, 2)->Unit(benchmark::kMillisecond);
BENCHMARK(addOne)->DenseRange(0, 2)->Unit(benchmark::kMillisecond);
BENCHMARK(updateAll)->DenseRange(0, 2)->Unit(benchmark::kMillisecond);
BENCHMARK(open)->Arg(0)->Arg(30)->Unit(benchmark::kMillisecond);

}  // namespace
