#include "host/core/FHistory.h"
#include "host/core/FMerixCtrl.h"
#include "host/core/FSelectionSet.h"
#include "host/core/FUserStep.h"
#include "host/gui/base/FTheme.h"
#include "host/gui/panels/FChainBox.h"
#include "host/gui/panels/FChainPanel.h"
#include "host/gui/panels/FChainScene.h"
#include "host/gui/panels/FChainView.h"
#include "host/gui/window/FDocumentTabs.h"
#include "host/gui/window/FNoticeBar.h"
#include "host/run/FExternComputation.h"
#include "tests/support/FTestFolder.h"
#include "tests/support/chainOfThree.h"
#include "tests/support/window/FWindowTest.h"
#include "tests/support/window/doubleClick.h"

#include <QAccessible>
#include <QAction>
#include <QMenu>
#include <QXmlStreamReader>

namespace {

class FChainPanelTest : public FWindowTest {
 public:
    FChainPanelTest() { FMerixCtrl::instance()->setProjectFile(folder.path("p.mrx")); }

    FChainView& view() { return *find<FChainView>("chainPicture"); }
    FChainScene& scene() { return view().chains(); }
    static FExternComputation* computation(const QString& name) { return object<FExternComputation>(name); }
    QPoint placeOf(const QString& name) {
        return view().mapFromScene(scene().boxOf(computation(name))->sceneBoundingRect().center());
    }
    /** What the boxes show. */
    QStringList boxes() {
        QStringList texts;
        for (const FChainBox* box : scene().boxes()) {
            texts.append(box->text());
        }
        return texts;
    }
    /** The tool tips of the arrows, which have their whole text. */
    QStringList arrows() {
        QStringList texts;
        for (const QGraphicsItem* item : scene().items(Qt::AscendingOrder)) {
            if (item->zValue() < 0) {
                texts.append(item->toolTip());
            }
        }
        texts.sort();
        return texts;
    }
    QString selected() {
        const FChainBox* box = view().current();
        return box ? box->computation()->getName() : QString();
    }

    FTestFolder folder;
};

TEST_F(FChainPanelTest, itFollowsTheProjectAndItsRuns) {
    ASSERT_TRUE(run("parameter p(1)"));
    settle();
    openPanel("chain");
    EXPECT_TRUE(view().accessibleDescription().contains("appear here")) << "an empty area says what belongs there";
    ASSERT_TRUE(run(chainOfThree));
    settle();
    EXPECT_EQ(view().accessibleDescription(), "");
    EXPECT_EQ(boxes().value(0), "first, sh -c . ./in.txt; echo v $x > first.txt, ready");
    EXPECT_EQ(boxes().value(4), "alone, no program, ready");
    EXPECT_EQ(arrows(), (QStringList{"first.txt", "first.txt", "x"}));
    const auto column = [this](const char* name) { return scene().boxOf(computation(name))->x(); };
    EXPECT_LT(column("first"), column("second"));
    EXPECT_LT(column("second"), column("third"));
    EXPECT_EQ(column("second"), column("apart"));

    ASSERT_TRUE(run("first.setArguments([\"-c\", \"while test ! -e go; do sleep 0.05; done; echo v 3 > first.txt\"])"));
    window().showObject(computation("third"));
    trigger("run");
    ASSERT_TRUE(waitUntil([] { return computation("first")->getLastRun().start.isValid(); }));
    EXPECT_TRUE(boxes().value(0).endsWith(", running")) << boxes().value(0).toStdString();
    EXPECT_TRUE(boxes().value(1).endsWith(", waiting")) << boxes().value(1).toStdString();
    folder.write("p.results/baseline/first/go", "");
    ASSERT_TRUE(waitUntil([] { return computation("third")->canRun(); }));
    settle();
    EXPECT_EQ(boxes().filter(", finished").size(), 3) << boxes().join('\n').toStdString();
    ASSERT_TRUE(run("first.setArguments([\"-c\", \"exit 3\"])"));
    trigger("run");
    ASSERT_TRUE(waitUntil([] { return computation("third")->canRun(); }));
    settle();
    EXPECT_TRUE(boxes().value(0).endsWith(", failed, exit code 3")) << boxes().value(0).toStdString();
    EXPECT_TRUE(boxes().value(2).endsWith(", not run: upstream failed")) << boxes().value(2).toStdString();

    {
        const FUserStep step("rename");
        computation("first")->setName("mesher");
    }
    ASSERT_TRUE(run("destroy(second)"));
    EXPECT_EQ(scene().boxes().size(), 4) << "what leaves the model goes at once";
    settle();
    EXPECT_EQ(arrows(), QStringList{"first.txt"});
    EXPECT_TRUE(boxes().value(0).startsWith("mesher, "));
    trigger("undo");
    EXPECT_EQ(arrows(), (QStringList{"first.txt", "first.txt", "x"}));
    ASSERT_TRUE(
        run("out3.setValues([[\"mean\", 0, 0, \"\", First, \"FDouble\", \"\", 1, "
            "alone.getResults().getTable(\"n\").getElementAt(\"rows\")]])"));
    settle();
    EXPECT_EQ(arrows(), (QStringList{"first.txt", "first.txt", "rows of mean", "x"}));
    dialogs().answers.enqueue("Discard");
    trigger("newProject");
    EXPECT_EQ(boxes().size(), 0);
}

TEST_F(FChainPanelTest, mouseAndKeysSelectAndOpen) {
    ASSERT_TRUE(run(chainOfThree));
    settle();
    window().documents().closeAll();
    openPanel("chain");
    EXPECT_TRUE(view().hasFocus());
    QTest::mouseClick(view().viewport(), Qt::LeftButton, {}, placeOf("second"));
    settle();
    EXPECT_EQ(window().runTarget().get(), computation("second"));
    press(&view(), Qt::Key_Right);
    EXPECT_EQ(selected(), "third");
    press(&view(), Qt::Key_Home);
    EXPECT_EQ(selected(), "first");
    press(&view(), Qt::Key_Right);
    EXPECT_EQ(selected(), "second");
    press(&view(), Qt::Key_Down);
    EXPECT_EQ(selected(), "apart");
    press(&view(), Qt::Key_Left);
    EXPECT_EQ(selected(), "first");
    EXPECT_TRUE(FSelectionSet::instance()->contains(computation("first")));
    window().showObject(object<FManaged>("second_connector"));
    settle();
    EXPECT_EQ(selected(), "second") << "a connector stands for its computation";
    window().showObject(object<FManaged>("conf1"));
    settle();
    EXPECT_EQ(selected(), "");

    const QString before = savedModel();
    doubleClick(view().viewport(), placeOf("first"));
    settle();
    EXPECT_EQ(window().documents().count(), 1);
    EXPECT_EQ(savedModel(), before);
    view().setFocus();
    window().showObject(computation("second"));
    press(&view(), Qt::Key_Return);
    settle();
    EXPECT_EQ(window().documents().count(), 2);
    // One without a connector gets it, which is a step.
    const int steps = FHistory::instance()->getLabels().size();
    window().showObject(computation("third"));
    press(&view(), Qt::Key_Return);
    settle();
    EXPECT_EQ(window().documents().count(), 3);
    EXPECT_EQ(FHistory::instance()->getLabels().size(), steps + 1);

    QAccessibleInterface* list = QAccessible::queryAccessibleInterface(&view());
    ASSERT_EQ(list->childCount(), 5);
    EXPECT_EQ(list->child(2)->text(QAccessible::Name), scene().boxes()[2]->text());
    EXPECT_TRUE(list->child(2)->state().selected);
    EXPECT_EQ(list->indexOfChild(list->child(3)), 3);
    EXPECT_TRUE(list->child(0)->rect().contains(view().viewport()->mapToGlobal(placeOf("first"))));
    list->child(3)->actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
    EXPECT_EQ(selected(), "apart");
}

TEST_F(FChainPanelTest, thePictureIsExportedInLightColours) {
    ASSERT_TRUE(run(chainOfThree));
    settle();
    FTheme::choose(FTheme::Appearance::Dark);
    openPanel("chain");
    dialogs().answers.enqueue(folder.path("dark.svg"));
    trigger("exportChain");
    FTheme::choose(FTheme::Appearance::Light);
    settle();
    QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(1, 1));
    QCoreApplication::sendEvent(view().viewport(), &event);
    dialogs().answers.enqueue(folder.path("light.svg"));
    find<QMenu>("chainMenu")->actions().last()->trigger();
    FTheme::choose(FTheme::Appearance::Desktop);
    const QByteArray svg = folder.read("dark.svg");
    EXPECT_EQ(svg, folder.read("light.svg"));
    QXmlStreamReader xml(svg);
    QStringList texts;
    while (!xml.atEnd()) {
        if (xml.readNext() == QXmlStreamReader::StartElement && xml.name() == "text") {
            texts.append(xml.readElementText().trimmed());
        }
    }
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
    for (const char* text : {"first", "third", "ready", "first.txt", "x"}) {
        EXPECT_TRUE(texts.contains(text)) << text << " in " << texts.join('|').toStdString();
    }
    dialogs().answers.enqueue(folder.path("missing/picture.svg"));
    trigger("exportChain");
    EXPECT_TRUE(window().notices().text().contains("missing/picture.svg"));
}

TEST_F(FChainPanelTest, aThousandBoxesAreShownAndReachedByKeys) {
    QString script;
    for (int i = 0; i < 1000; ++i) {
        script += QString(
                      "genericIntegrationDefinition d%1() { .addEntry(\"a\", 0); .addEntry(\"b\", 0) }\n"
                      "genericIntegrationConfiguration c%1() { .setDefinition(d%1) }\n"
                      "genericIntegrationComputation r%1() { .setConfiguration(c%1) }\n")
                      .arg(i);
        script += i == 0 ? QString()
                         : QString(
                               "c%1.setEntryValue(\"a\", r%2.getResults().getDataAt(0, 0))\n"
                               "c%1.setEntryValue(\"b\", r%3.getResults().getDataAt(0, 0))\n")
                               .arg(i)
                               .arg(i - 1)
                               .arg(i / 3);
    }
    window().panels().raise("chain");
    ASSERT_TRUE(run(script));
    settle();
    EXPECT_EQ(scene().boxes().size(), 1000);
    EXPECT_EQ(arrows().size(), 2 * 999 - 1) << "the first two links of the second box are one";
    ASSERT_TRUE(run("c500.setEntryValue(\"b\", 1)"));
    settle();
    press(&view(), Qt::Key_End);
    settle();
    EXPECT_EQ(selected(), "r999");
}

}  // namespace
