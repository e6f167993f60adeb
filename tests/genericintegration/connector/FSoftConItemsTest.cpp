#include "genericintegration/connector/FSoftConComputationItem.h"
#include "genericintegration/connector/FSoftConExportItem.h"
#include "genericintegration/connector/FSoftConFileNameRefItem.h"
#include "genericintegration/connector/FSoftConImportItem.h"
#include "genericintegration/connector/FSoftConInputTemplateItem.h"
#include "genericintegration/connector/FSoftConOutputTemplateItem.h"
#include "genericintegration/connector/layout/FSoftConLargeGridLayout.h"
#include "genericintegration/connector/layout/FSoftConListLayout.h"
#include "genericintegration/connector/layout/FSoftConMediumGridLayout.h"
#include "genericintegration/setup/FConfigurationGenInt.h"
#include "genericintegration/setup/FDefinitionGenInt.h"
#include "genericintegration/templates/FGenIntCommandFile.h"
#include "genericintegration/templates/FGenIntResultsFile.h"
#include "host/core/FIni.h"
#include "host/core/FUserStep.h"
#include "host/design/FEntryDef.h"
#include "host/design/FResultsFileName.h"
#include "tests/genericintegration/connector/FFakeItemScene.h"
#include "tests/support/FTestFolder.h"
#include "tests/support/window/FWindowTest.h"
#include "tests/support/window/doubleClick.h"

#include <gmock/gmock.h>

#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QGraphicsProxyWidget>
#include <QGraphicsSceneEvent>
#include <QGraphicsView>
#include <QMenu>

namespace {

class FSoftConItemsTest : public FWindowTest {
 public:
    FSoftConItemsTest() {
        EXPECT_TRUE(run("softwareConnector c()"));
        scene = std::make_unique<FFakeItemScene>(FExpr<FExternComputation>(object<FExternComputation>("Runner")));
        scene->layout = std::make_unique<FSoftConMediumGridLayout>();
        before = savedModel();
    }
    ~FSoftConItemsTest() override {
        scene.reset();
        EXPECT_EQ(QApplication::overrideCursor(), nullptr) << "the pointer is as it was";
    }

    FDefinitionGenInt& definition() { return *object<FDefinitionGenInt>("definitionGenInt"); }
    /** The entries that hold values, with them. */
    std::string entries() {
        QStringList entries;
        for (const auto& entry : object<FConfigurationGenInt>("configurationGenInt")->getEntryMap()) {
            const auto* holder = static_cast<FEntry*>(entry.getStored());
            entries.append(holder->getFullName() + " = " + holder->getValue().toHistoryString());
        }
        return entries.join('\n').toStdString();
    }
    void expectUndone() {
        const QString after = savedModel();
        ASSERT_TRUE(FHistory::instance()->undo());
        EXPECT_EQ(savedModel().toStdString(), before.toStdString());
        ASSERT_TRUE(FHistory::instance()->redo());
        EXPECT_EQ(savedModel().toStdString(), after.toStdString());
    }
    /** An item with a new object of that class. */
    template <class Item, class Object>
    Item* make(SoftConArea area, const QString& path, const QString& relativePath) {
        return scene->make<Item>(Object::null(), area, path, relativePath);
    }
    static QString caption(const FSoftConObjectItem& item) { return item.getLabelItem()->text(); }

    /** The scene in a view, for real events. */
    QGraphicsView& view() {
        if (!mpView) {
            mpView = std::make_unique<QGraphicsView>(scene.get());
            mpView->resize(800, 600);
            mpView->show();
        }
        return *mpView;
    }
    /** The texts of an item's context menu, "-" before those that are grey. Uses all others. */
    std::string useMenu(FSoftConObjectItem& item) {
        QGraphicsSceneContextMenuEvent event(QEvent::GraphicsSceneContextMenu);
        event.setWidget(view().viewport());
        scene->sendEvent(&item, &event);
        QStringList texts;
        auto* menu = view().viewport()->findChild<QMenu*>();
        for (QAction* action : menu->actions()) {
            texts.append((action->isEnabled() ? "" : "-") + action->text());
            if (action->isEnabled()) {
                action->trigger();
            }
        }
        delete menu;
        return texts.join(", ").toStdString();
    }
    QPoint placeOf(const FSoftConObjectItem& item, QPointF inItem = {20, 20}) {
        return view().mapFromScene(item.mapToScene(inItem));
    }
    void doubleClickOn(const FSoftConObjectItem& item) { doubleClick(view().viewport(), placeOf(item)); }

    FTestFolder folder;
    std::unique_ptr<FFakeItemScene> scene;
    QString before;

 private:
    std::unique_ptr<QGraphicsView> mpView;
};

TEST_F(FSoftConItemsTest, templatesAreMadeFromFiles) {
    auto* input = make<FSoftConInputTemplateItem, FGenIntCommandFile>(SoftConInputArea,
                                                                      folder.write("in/case.txt", "x = 1"), "sub");
    EXPECT_EQ(scene->takeCalls(), "add tab sub/case.txt, name tab sub/case.txt, name tab sub/case.txt");
    EXPECT_EQ(caption(*input), "case.txt");
    EXPECT_EQ(input->getToolTip(), "sub/case.txt");
    EXPECT_EQ(input->getEditorObject().toString(), "configurationGenInt");
    EXPECT_EQ(definition().getFiles(0).size(), 1);
    EXPECT_EQ(FHistory::instance()->getLabels().last(), "Add input template");
    expectUndone();

    auto* output = make<FSoftConOutputTemplateItem, FGenIntResultsFile>(
        SoftConOutputArea, folder.write("out/a/b.dat", "1"), folder.path("out"));
    EXPECT_EQ(output->getToolTip(), "a/b.dat");
    EXPECT_TRUE(output->getEditorObject().isEmpty());
    const FUserStep step("delete");
    output->removeObject();
    EXPECT_EQ(definition().getFiles().size(), 1);
}

TEST_F(FSoftConItemsTest, aTemplateIsPaintedAnewWhenItsTextOrSizeChanges) {
    auto* input =
        make<FSoftConInputTemplateItem, FGenIntCommandFile>(SoftConInputArea, folder.write("case.txt", "x = 1"), "");
    input->updateItem();
    const qint64 key = input->pixmap().cacheKey();
    EXPECT_EQ(input->pixmap().size(), QSize(75, 106));
    input->setPreviewOutOfDate();
    input->updateItem();
    EXPECT_EQ(input->pixmap().cacheKey(), key) << "nothing has changed";
    ASSERT_TRUE(run("case_txt.setContent(\"y = 2\")")) << logText();
    input->updateItem();
    EXPECT_NE(input->pixmap().cacheKey(), key);
    scene->layout = std::make_unique<FSoftConListLayout>();
    input->updateItem();
    EXPECT_EQ(input->pixmap().size(), QPixmap(":/softConTemplate_Small").size());
    scene->layout = std::make_unique<FSoftConLargeGridLayout>();
    input->setPreviewOutOfDate();
    input->updateItem();
    EXPECT_EQ(input->pixmap().size(), QSize(150, 212));
}

TEST_F(FSoftConItemsTest, inputFilesAreEntriesCalledAfterThem) {
    auto* item = make<FSoftConFileNameItem, FInputFile>(SoftConInputArea, "/data/in/sub/mesh.su2", "/data/in");
    EXPECT_EQ(entries(), "Exports|mesh.su2 = inputFile(\"/data/in/sub/mesh.su2\",\"sub/\")");
    EXPECT_EQ(item->getToolTip(), "/data/in/sub/mesh.su2");
    EXPECT_EQ(scene->takeCalls(), "edit Exports|mesh.su2");
    expectUndone();
    // A second one goes to the same group, and one of another type to its own.
    make<FSoftConFileNameItem, FInputFile>(SoftConInputArea, "wing.dat", "");
    make<FSoftConImportItem, FResultsFileName>(SoftConImportArea, "/run/out/polar.csv", "/run/");
    EXPECT_EQ(entries(),
              "Exports|mesh.su2 = inputFile(\"/data/in/sub/mesh.su2\",\"sub/\")\nExports|wing.dat = "
              "inputFile(\"wing.dat\")\nImports|out_polar_csv = resultsFileName(\"out/polar.csv\",1)");
}

TEST_F(FSoftConItemsTest, aNameGivenByHandStaysUntilTheFileChanges) {
    auto* item = make<FSoftConFileNameItem, FInputFile>(SoftConInputArea, "a.dat", "");
    FEntry* entry = static_cast<FEntry*>(item->getObject().getStored());
    const auto change = [](const std::function<void()>& what) {
        const FUserStep step("change");
        what();
    };
    change([entry] { entry->getDefinition()->setName("mine"); });
    change([item] { item->setOutOfDate(true); });
    EXPECT_EQ(entry->getName(), "mine");
    // An item for an entry that exists renames nothing either.
    auto* second = scene->add<FSoftConFileNameItem>(item->getObject(), SoftConInputArea);
    change([second] { second->setOutOfDate(true); });
    EXPECT_EQ(entry->getName(), "mine");
    change([entry] {
        static_cast<FInputFile*>(entry->getValue().getStored())->setFileName(FExprBase(new FString("dir/b.dat")));
    });
    EXPECT_EQ(entry->getName(), "b.dat");
    EXPECT_EQ(caption(*item), "b.dat");
}

TEST_F(FSoftConItemsTest, longCaptionsAreShortenedInTheList) {
    scene->layout = std::make_unique<FSoftConListLayout>();
    auto* item = make<FSoftConFileNameItem, FInputFile>(SoftConInputArea, "/home/user/projects/a/b/c/polar.dat", "");
    EXPECT_EQ(caption(*item), "/home/user/...cts/a/b/c/polar.dat");
    FIni().setValue("Software Connector/Input File Path Length", -1);
    item->updateItem();
    EXPECT_EQ(caption(*item), "/home/user/projects/a/b/c/polar.dat");
    FIni().remove("Software Connector/Input File Path Length");
}

TEST_F(FSoftConItemsTest, exportsTakeGeometryThatIsDropped) {
    ASSERT_TRUE(run("point p(0, 0, 0); point q(1, 0, 0)")) << logText();
    before = savedModel();
    const FExpr<FObjectList> list(new FObjectList);
    list->add(FExpr<FObject>(object<FManaged>("p")));
    auto* item = scene->make<FSoftConExportItem>(FExpr<FObject>(list), SoftConExportArea, "", "");
    EXPECT_EQ(caption(*item), "p_export");
    EXPECT_THAT(entries(), testing::StartsWith("Exports|p_export = geometryExport(\"\""));
    expectUndone();

    scene->add<FSoftConExportItem>(FExpr<FObject>(static_cast<FEntry*>(item->getObject().getStored())),
                                   SoftConExportArea);
    const auto* value =
        static_cast<FGeometryExport*>(static_cast<FEntry*>(item->getObject().getStored())->getValue().getStored());
    scene->dragged = FExpr<FObjectList>(new FObjectList);
    QGraphicsSceneDragDropEvent move(QEvent::GraphicsSceneDragMove);
    scene->sendEvent(item, &move);
    EXPECT_FALSE(move.isAccepted()) << "nothing that can be exported";
    scene->dragged->add(FExpr<FObject>(object<FManaged>("q")));
    scene->sendEvent(item, &move);
    EXPECT_TRUE(move.isAccepted());
    QGraphicsSceneDragDropEvent drop(QEvent::GraphicsSceneDrop);
    scene->sendEvent(item, &drop);
    EXPECT_EQ(value->getExportedObjects().size(), 2);
}

TEST_F(FSoftConItemsTest, aDoubleClickMakesATemplateOfAnInputFile) {
    auto* item =
        make<FSoftConFileNameItem, FInputFile>(SoftConInputArea, folder.write("case.txt", "x = 1"), folder.path());
    before = savedModel();
    scene->calls.clear();
    doubleClickOn(*item);
    EXPECT_EQ(entries(), "");
    ASSERT_EQ(definition().getFiles(0).size(), 1);
    EXPECT_EQ(definition().getFiles(0)[0]->getPlainContent(), "x = 1");
    EXPECT_TRUE(scene->calls.contains("tab case.txt"));
    EXPECT_EQ(FHistory::instance()->getLabels().last(), "create input template");
    expectUndone();
}

TEST_F(FSoftConItemsTest, aFileOfACommandIsReplacedOnlyIfTheUserWantsIt) {
    auto* item =
        make<FSoftConFileNameItem, FInputFile>(SoftConInputArea, folder.write("case.txt", "x = 1"), folder.path());
    ASSERT_TRUE(run("softwareConnector d()"));
    {
        const FUserStep step("change");
        FExprBase command;
        ASSERT_TRUE(command.resolve("Runner_01.getResults().getResultFileName(\"case.txt\")"));
        static_cast<FInputFile*>(static_cast<FEntry*>(item->getObject().getStored())->getValue().getStored())
            ->setFileName(command);
    }
    dialogs().answers.append("Cancel");
    doubleClickOn(*item);
    EXPECT_EQ(definition().getFiles(0).size(), 0);
    ASSERT_EQ(dialogs().questions.size(), 1);
    EXPECT_TRUE(dialogs().questions[0].contains("A copy of the file (if available) will be stored as template"));
    // The release went to the question: the next click is one all the same.
    dialogs().answers.append("Cancel");
    QTest::mouseClick(view().viewport(), Qt::LeftButton, {}, placeOf(*item));
    const QPoint place = placeOf(*item);
    QMouseEvent second(QEvent::MouseButtonDblClick, place, view().viewport()->mapToGlobal(place), Qt::LeftButton,
                       Qt::LeftButton, {});
    QApplication::sendEvent(view().viewport(), &second);
    scene->calls.clear();
    QTest::mouseClick(view().viewport(), Qt::LeftButton, {}, placeOf(*item));
    EXPECT_EQ(scene->takeCalls().substr(0, 4), "edit");
    EXPECT_EQ(dialogs().questions.size(), 2);
    dialogs().answers.append("Proceed");
    doubleClickOn(*item);
    EXPECT_EQ(definition().getFiles(0).size(), 1);
}

TEST_F(FSoftConItemsTest, aLinkIsCalledAfterTheResult) {
    ASSERT_TRUE(run("softwareConnector d()"));
    auto* item = make<FSoftConFileNameRefItem, FBool>(SoftConInputArea, "", "");
    {
        const FUserStep step("link");
        FExprBase link;
        ASSERT_TRUE(link.resolve("Runner_01.getResults().getResultFileName(\"sub/polar.dat\")"));
        static_cast<FInputFile*>(static_cast<FEntry*>(item->getObject().getStored())->getValue().getStored())
            ->setFileName(link);
    }
    EXPECT_EQ(caption(*item), "polar.dat");
    EXPECT_THAT(entries(), testing::StartsWith("Exports|polar.dat = inputFile(Runner_01.getResults()"));
    scene->calls.clear();
    doubleClickOn(*item);
    EXPECT_EQ(scene->takeCalls(), "edit Exports|polar.dat, edit Exports|polar.dat") << "no more than clicks";
}

TEST_F(FSoftConItemsTest, deletingAnItemUnderThePointer) {
    auto* item = make<FSoftConImportItem, FResultsFileName>(SoftConImportArea, "polar.csv", "");
    before = savedModel();
    const QPoint place = placeOf(*item);
    QMouseEvent move(QEvent::MouseMove, place, view().viewport()->mapToGlobal(place), Qt::NoButton, Qt::NoButton, {});
    QApplication::sendEvent(view().viewport(), &move);
    ASSERT_NE(QApplication::overrideCursor(), nullptr);
    EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::PointingHandCursor);
    EXPECT_EQ(item->toolTip(), "polar.csv");
    QPointer<QObject> alive(item);
    {
        const FUserStep step("software connector: delete item");
        auto* proxy = dynamic_cast<QGraphicsProxyWidget*>(item->childItems().last());
        ASSERT_NE(proxy, nullptr);
        static_cast<QAbstractButton*>(proxy->widget())->click();
    }
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    EXPECT_EQ(entries(), "");
    expectUndone();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(alive);
}

TEST_F(FSoftConItemsTest, clicksAndNamesOfTheComputation) {
    auto* item =
        scene->add<FSoftConComputationItem>(FExpr<FObject>(object<FManaged>("Runner")), SoftConComputationArea);
    item->setPixmap(QPixmap(":/computationImage"));
    {
        const FUserStep step("rename");
        object<FManaged>("Runner")->setName("solver");
    }
    item->FObject::update();
    EXPECT_EQ(caption(*item), "solver");
    EXPECT_EQ(item->boundingRect().size(), item->pixmap().size()) << "no frame";
    QTest::mouseClick(view().viewport(), Qt::LeftButton, {}, placeOf(*item));
    EXPECT_EQ(scene->takeCalls(), "edit solver");
    doubleClickOn(*item);
    EXPECT_EQ(scene->takeCalls(), "edit solver, tab -") << "the release of a double click is no click";
    EXPECT_EQ(useMenu(*item),
              "Run, -Read existing result files, Show preview of input files, Export software connector to file");
    EXPECT_EQ(scene->takeCalls(), "run, preview, export");
    EXPECT_EQ(useMenu(*make<FSoftConImportItem, FResultsFileName>(SoftConImportArea, "polar.csv", "")),
              "Copy File Name");
    EXPECT_EQ(QApplication::clipboard()->text(), "polar.csv");
}

}  // namespace
