#include "tests/genericintegration/connector/FConnectorTest.h"

#include "genericintegration/setup/FGenIntComputation.h"
#include "host/core/FHistory.h"
#include "host/core/FMerixCtrl.h"
#include "host/gui/window/FDocumentTabs.h"

#include <QDragMoveEvent>
#include <QDropEvent>
#include <QMimeData>

const char* const FConnectorTest::setUp = R"(
genericIntegrationCommandFile input() {
    .setFileName("case.inp")
    .setContent("a = <entry>a</entry>
b = <entry>b</entry>")
}
genericIntegrationCommandFile other() { .setFileName("more.inp") .setContent("<entry>b</entry>") }
genericIntegrationResultsFile output() { .setFileName("out.txt") .setContent("x = 1") }
genericIntegrationDefinition d() { .addEntry("a", 1) .addEntry("b", 2) .setFiles([input, other, output]) }
genericIntegrationConfiguration c() { .setDefinition(d) }
genericIntegrationComputation solver() {
    .setConfiguration(c)
    .setExecutable("sh")
    .setArguments(["-c", "cp case.inp out.txt; echo 1 > new.csv"])
}
softwareConnector con() { .setComputation(solver) }
destroy(Runner)
destroy(configurationGenInt)
destroy(definitionGenInt)
)";

const char* const FConnectorTest::allItems = "case.inp more.inp | out.txt | solver";

FConnectorTest::FConnectorTest() {
    FMerixCtrl::instance()->setProjectFile(folder.path("p.mrx"));
}

// The pointer may be over an item, and gets its usual shape again.
FConnectorTest::~FConnectorTest() {
    window().documents().closeAll();
}

void FConnectorTest::open() {
    ASSERT_TRUE(run(setUp));
    object<FGenIntComputation>("solver")->openSoftwareConnector();
    settle();
    ASSERT_NE(connector().window(), &connector()) << "it is shown in the window";
}

std::string FConnectorTest::items() {
    settle();
    QMap<int, QStringList> labels;
    for (const FSoftConObjectItem* item : scene().objectItems()) {
        labels[item->getArea()].append(item->getLabelItem()->text());
    }
    QStringList areas;
    for (QStringList& area : labels) {
        area.sort();
        areas.append(area.join(QLatin1Char(' ')));
    }
    return areas.join(QStringLiteral(" | ")).toStdString();
}

FSoftConObjectItem* FConnectorTest::item(const QString& label) {
    settle();
    for (FSoftConObjectItem* candidate : scene().objectItems()) {
        if (candidate->getLabelItem()->text() == label) {
            return candidate;
        }
    }
    ADD_FAILURE() << "no item " << label.toStdString();
    return nullptr;
}

QStringList FConnectorTest::tabs() {
    settle();
    QStringList texts;
    for (int index = 0; index < connector().count(); ++index) {
        texts.append(connector().tabText(index));
    }
    return texts;
}

QPoint FConnectorTest::pointOf(const QPointF& scenePoint) {
    connector().getView()->ensureVisible(QRectF(scenePoint, QSizeF(1, 1)));
    return connector().getView()->mapFromScene(scenePoint);
}

QPoint FConnectorTest::centreOf(const QString& label) {
    return pointOf(item(label)->mapToScene(item(label)->boundingRect().center()));
}

QPointF FConnectorTest::inArea(SoftConArea area) {
    settle();
    const double x = isLeftArea(area) ? -150 : 150;
    const double y = isUpperArea(area) ? -60 : 120;
    EXPECT_EQ(scene().getArea({x, y}), area);
    return {x, y};
}

bool FConnectorTest::drop(const QMimeData& data, const QPointF& place) {
    QWidget* target = connector().getView()->viewport();
    const QPoint point = pointOf(place);
    QDragEnterEvent enter(point, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(target, &enter);
    QDragMoveEvent move(point, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(target, &move);
    const bool isAccepted = move.isAccepted();
    if (isAccepted) {
        QDropEvent event(point, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(target, &event);
    }
    settle();
    return isAccepted;
}

std::unique_ptr<QMimeData> FConnectorTest::filesOf(const QStringList& names) const {
    auto data = std::make_unique<QMimeData>();
    QList<QUrl> urls;
    for (const QString& name : names) {
        urls.append(QUrl::fromLocalFile(folder.path(name)));
    }
    data->setUrls(urls);
    return data;
}

QString FConnectorTest::lastStep() {
    const QStringList labels = FHistory::instance()->getLabels();
    return labels.isEmpty() ? QString() : labels.last();
}

void FConnectorTest::expectOneStep(const QString& before, const QString& label) {
    settle();
    EXPECT_EQ(lastStep(), label);
    const QString after = savedModel();
    const std::string shown = items();
    trigger("undo");
    EXPECT_EQ(savedModel().toStdString(), before.toStdString());
    trigger("redo");
    EXPECT_EQ(savedModel().toStdString(), after.toStdString());
    EXPECT_EQ(items(), shown);
}
