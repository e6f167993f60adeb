#include "genericintegration/connector/FSoftConScene.h"
#include "genericintegration/connector/dialogs/FSoftConDialog.h"
#include "host/core/FIni.h"
#include "host/core/FSelectionSet.h"
#include "tests/genericintegration/connector/FConnectorTest.h"

#include <QGraphicsProxyWidget>
#include <QMenu>
#include <QToolButton>

namespace {

class FSoftConSceneTest : public FConnectorTest {};

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
