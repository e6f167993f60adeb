#include "genericintegration/connector/FSoftConScene.h"
#include "genericintegration/connector/dialogs/FSoftConDialog.h"
#include "host/core/FIni.h"
#include "host/core/FSelectionSet.h"
#include "host/gui/base/FObjectMime.h"
#include "host/gui/window/FNoticeBar.h"
#include "tests/genericintegration/connector/FConnectorTest.h"

#include <QGraphicsProxyWidget>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QTextBrowser>
#include <QToolButton>
#include <QTreeView>

namespace {

class FSoftConSceneTest : public FConnectorTest {
 public:
    /** Types a path into the file dialog that is opened next, and accepts it. */
    void answer(const QString& path) {
        QTimer::singleShot(0, [this, path] {
            auto* dialog = window().findChild<FSoftConDialog*>();
            ASSERT_NE(dialog, nullptr);
            auto* field = dialog->findChild<QLineEdit*>();
            field->setFocus();
            QTest::keyClicks(field, path);
            dialog->accept();
        });
    }
    QString notice() { return window().notices().text(); }
};

}  // namespace

TEST_F(FSoftConSceneTest, aClickSelectsAfterTheTimeOfADoubleClick) {
    open();
    const auto click = [this](const QString& label) {
        QTest::mouseClick(connector().getView()->viewport(), Qt::LeftButton, {}, centreOf(label));
    };
    click("solver");
    EXPECT_EQ(FSelectionSet::instance()->count(), 0);
    ASSERT_TRUE(waitUntil([] { return FSelectionSet::instance()->contains(object<FManaged>("solver")); }));
    click("case.inp");
    ASSERT_TRUE(waitUntil([] { return FSelectionSet::instance()->contains(object<FManaged>("c")); }));
    click("out.txt");
    settle();
    EXPECT_TRUE(FSelectionSet::instance()->contains(object<FManaged>("c"))) << "a result template selects nothing";
}

TEST_F(FSoftConSceneTest, aClickedItemIsShownInTheEditorAndIsWhatDeleteTakes) {
    open();
    ASSERT_TRUE(run("point p(1, 2, 3)\nd.addEntry(\"Exports|tip\", geometryExport(\"\", 0, [p]))"));
    window().showObject(object<FManaged>("p"));
    settle();
    const auto click = [this](const QString& label) {
        QTest::mouseClick(connector().getView()->viewport(), Qt::LeftButton, {}, centreOf(label));
    };
    const auto isShown = [this](const QString& name) { return find<QLineEdit>("objectName")->text() == name; };
    click("tip");
    ASSERT_TRUE(waitUntil([&] { return isShown("Exports|tip"); }));
    settle();
    EXPECT_EQ(find<QLabel>("objectClass")->text(), "geometry export");
    EXPECT_EQ(find<QTreeView>("entryTree")->currentIndex().data().toString(), "tip") << "its file name is set there";
    EXPECT_FALSE(find<QTreeView>("objectTree")->selectionModel()->hasSelection());
    EXPECT_FALSE(action("rename")->isEnabled()) << "what was selected in the tree before isn't renamed";
    trigger("help");
    EXPECT_TRUE(find<QTextBrowser>("helpText")->toPlainText().contains("FGeometryExport"));
    connector().getView()->setFocus();
    // A click on an input template selects the configuration, which stays.
    click("case.inp");
    ASSERT_TRUE(waitUntil([&] { return isShown("c"); }));
    const QString before = savedModel();
    window().menuBar()->setFocus(Qt::MenuBarFocusReason);  // as by Alt
    trigger("delete");
    EXPECT_EQ(items(), "more.inp | tip | out.txt | solver");
    expectOneStep(before, "software connector: delete item");
    // An entry that isn't there any more isn't shown.
    click("tip");
    ASSERT_TRUE(waitUntil([&] { return isShown("Exports|tip"); }));
    trigger("undo");
    trigger("undo");
    EXPECT_FALSE(find<QTreeView>("entryTree")->isVisible());
}

TEST_F(FSoftConSceneTest, theMenuSetsTheSizeOfAllItemsAndAddsToItsArea) {
    open();
    const auto menuAt = [this](const QPointF& place) {
        const QPoint point = pointOf(place);
        QContextMenuEvent event(QContextMenuEvent::Mouse, point, connector().getView()->viewport()->mapToGlobal(point));
        QApplication::sendEvent(connector().getView()->viewport(), &event);
        return find<QMenu>("connectorMenu");
    };
    QMenu* menu = menuAt(inArea(SoftConOutputArea));
    EXPECT_EQ(menu->actions().first()->text(), "Add Result Values");
    const QString before = savedModel();
    for (QAction* action : menu->actions()) {
        EXPECT_EQ(action->isChecked(), action->text() == "Medium");
        if (action->text() == "Small") {
            action->trigger();
        }
    }
    menu->close();
    settle();
    EXPECT_EQ(connector().getItemSizeStr(), "Small");
    EXPECT_EQ(FIni().value("SoftwareConnector/lastItemSize").toInt(), 4);
    EXPECT_EQ(scene().getLayout()->getSizeName(), "Small");
    expectOneStep(before, "Set item size");
    FIni().remove("SoftwareConnector/lastItemSize");
}

TEST_F(FSoftConSceneTest, aDeletedItemTakesAlongWhatOnlyItUsed) {
    open();
    const QString before = savedModel();
    auto* button = item("case.inp")->childItems().last();
    for (QGraphicsItem* child : item("case.inp")->childItems()) {
        button = dynamic_cast<QGraphicsProxyWidget*>(child) ? child : button;
    }
    auto* proxy = dynamic_cast<QGraphicsProxyWidget*>(button);
    ASSERT_NE(proxy, nullptr);
    qobject_cast<QToolButton*>(proxy->widget())->click();
    EXPECT_EQ(items(), "more.inp | out.txt | solver");
    EXPECT_EQ(tabs(), (QStringList{"Overview", "more.inp", "out.txt"}));
    EXPECT_EQ(textOf("d.getEntryNames()"), textOf("[\"b\"]")) << "the other template uses b";
    expectOneStep(before, "software connector: delete item");
}

TEST_F(FSoftConSceneTest, theButtonsAskForFiles) {
    open();
    folder.write("new.inp", "1");
    const QString before = savedModel();
    QToolButton* add = nullptr;
    for (QGraphicsItem* candidate : scene().items()) {
        const auto* proxy = dynamic_cast<QGraphicsProxyWidget*>(candidate);
        auto* button = proxy ? qobject_cast<QToolButton*>(proxy->widget()) : nullptr;
        add = button && button->accessibleName() == "Add Input Files" ? button : add;
    }
    ASSERT_NE(add, nullptr);
    QTimer::singleShot(0, [this] {
        auto* dialog = window().findChild<FSoftConDialog*>();
        ASSERT_NE(dialog, nullptr);
        dialog->selectFile(folder.path("new.inp"));
        dialog->accept();
    });
    add->click();
    EXPECT_EQ(items(), "case.inp more.inp new.inp | out.txt | solver");
    expectOneStep(before, "Add input files");
    FIni().remove("SoftwareConnector/addTemplatePath");
}

TEST_F(FSoftConSceneTest, aTypedPathGivesNoFolderOfTheNameAndWhatIsRefusedIsTold) {
    open();
    const FTestFolder other;
    answer(other.write("out.txt", "x = 2"));
    scene().addOutput();
    EXPECT_EQ(items(), allItems) << "its name is that of another template";
    answer(other.write("out.txt", "x = 2"));
    scene().add(SoftConOutputArea);
    EXPECT_EQ(notice(), "The file out.txt is already part of this set up. Item creation aborted.");
    FIni().setValue("SoftwareConnector/convertToTemplate", true);
    answer(other.write("deck.inp", "y = 3"));
    scene().add(SoftConInputArea);
    answer(other.path("later.inp"));
    scene().add(SoftConInputArea);
    EXPECT_EQ(items(), "case.inp deck.inp later.inp more.inp | out.txt | solver");
    EXPECT_TRUE(savedModel().contains("setFileName(\"deck.inp\")")) << savedModel().toStdString();
    EXPECT_TRUE(notice().contains("later.inp doesn't exist. Its template is empty"));
    FIni().clear();
    // Without a definition there is nothing that an item could be in.
    ASSERT_TRUE(run("c.setDefinition(NULL)"));
    EXPECT_EQ(items(), "solver");
    const QString before = savedModel();
    scene().add(SoftConExportArea);
    EXPECT_EQ(scene().objectItems().size(), 1);
    EXPECT_EQ(savedModel().toStdString(), before.toStdString());
    EXPECT_TRUE(notice().contains("no configuration with a definition"));
    window().notices().showNotice({"another"});
    ASSERT_TRUE(run("point p(1, 2, 3)"));
    drop(*std::unique_ptr<QMimeData>(FObjectMime::encode({object<FManaged>("p")})), inArea(SoftConExportArea));
    EXPECT_TRUE(notice().contains("no configuration with a definition")) << notice().toStdString();
}

TEST_F(FSoftConSceneTest, labelsAndHelpHaveTheirRoom) {
    open();
    window().resize(1024, 660);
    settle();
    QList<QRectF> buttons;
    QHash<QString, QRectF> labels;
    for (QGraphicsItem* part : scene().items()) {
        auto* proxy = dynamic_cast<QGraphicsProxyWidget*>(part);
        const auto* label = proxy ? qobject_cast<QLabel*>(proxy->widget()) : nullptr;
        if (label) {
            labels.insert(label->text(), proxy->sceneBoundingRect());
        } else if (proxy && qobject_cast<QToolButton*>(proxy->widget()) && !proxy->parentItem()) {
            buttons.append(proxy->sceneBoundingRect());
        }
    }
    ASSERT_EQ(labels.size(), 4);
    for (auto label = labels.begin(); label != labels.end(); ++label) {
        for (const QRectF& button : qAsConst(buttons)) {
            EXPECT_FALSE(button.intersects(*label)) << label.key().toStdString() << " is covered";
        }
    }
    scene().showDocu("Input Files");
    auto* help = find("htmlToolTip");
    constexpr int least = 50;  // characters
    EXPECT_GE(help->width(), least * help->fontMetrics().averageCharWidth());
    help->close();
}
