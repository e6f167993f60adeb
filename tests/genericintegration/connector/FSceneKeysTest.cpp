#include "genericintegration/connector/FSceneKeys.h"
#include "host/core/FSelectionSet.h"
#include "tests/genericintegration/connector/FConnectorTest.h"

#include <QAccessible>
#include <QAction>
#include <QMenu>
#include <QTabBar>

namespace {

class FSceneKeysTest : public FConnectorTest {};

}  // namespace

TEST_F(FSceneKeysTest, keysDoWhatTheMouseDoes) {
    open();
    ASSERT_TRUE(
        run("d.addEntry(\"Exports|mesh\", inputFile(\"mesh.msh\"))\npoint p(1, 2, 3)\n"
            "d.addEntry(\"Exports|tip\", geometryExport(\"tip.csv\", 0, [p]))"));
    settle();
    QGraphicsView* view = connector().getView();
    const auto focused = [&] {
        settle();
        QAccessibleInterface* part = QAccessible::queryAccessibleInterface(view)->focusChild();
        return part ? part->text(QAccessible::Name).toStdString() : std::string();
    };
    find<QTabBar>("softConTabBar")->setFocus();
    view->setFocus(Qt::TabFocusReason);
    EXPECT_EQ(focused(), "tip");
    const auto go = [&](std::initializer_list<Qt::Key> keys) {
        for (const Qt::Key key : keys) {
            press(view, key);
        }
        return focused();
    };
    EXPECT_EQ(go({Qt::Key_Right, Qt::Key_Right}), "mesh.msh");
    EXPECT_EQ(go({Qt::Key_Up}), "mesh.msh") << "there is nothing above";
    EXPECT_TRUE(action("delete")->isEnabled());
    EXPECT_EQ(go({Qt::Key_Left, Qt::Key_Down}), "solver");
    EXPECT_FALSE(action("delete")->isEnabled()) << "it can't be taken away";
    EXPECT_EQ(go({Qt::Key_Down}), "out.txt");
    EXPECT_EQ(go({Qt::Key_Up, Qt::Key_Space}), "solver");
    ASSERT_TRUE(waitUntil([] { return FSelectionSet::instance()->contains(object<FManaged>("solver")); }));
    EXPECT_EQ(go({Qt::Key_Up, Qt::Key_Right}), "case.inp");
    press(view, Qt::Key_Return);
    EXPECT_EQ(connector().tabText(connector().currentIndex()), "case.inp");
    connector().gotoOverview();
    view->setFocus();
    EXPECT_EQ(focused(), "case.inp") << "as it was left";
    const QString before = savedModel();
    EXPECT_EQ(go({Qt::Key_Delete}), "mesh.msh");
    expectOneStep(before, "software connector: delete item");
    // Tab goes to the buttons, and on to what follows.
    EXPECT_EQ(go({Qt::Key_Tab}), "Add Input Geometry");
    EXPECT_EQ(go({Qt::Key_Right, Qt::Key_Right}), "About Input Files");
    EXPECT_EQ(go({Qt::Key_Left, Qt::Key_Left, Qt::Key_Return}), "Add Input Geometry");
    EXPECT_EQ(lastStep(), "Add export");
    QTest::keyClick(view, Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(go({Qt::Key_Tab, Qt::Key_Tab}), "");
    QTest::keyClick(view, Qt::Key_Backtab, Qt::ShiftModifier);
    QTest::keyClick(view, Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(focused(), "mesh.msh");
    // A click beside all items doesn't lead astray.
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, pointOf(inArea(SoftConImportArea)));
    EXPECT_EQ(focused(), "");
    EXPECT_EQ(go({Qt::Key_Tab}), "mesh.msh");
    // The menu is that of the item, not of the place of the pointer.
    QContextMenuEvent menu(QContextMenuEvent::Keyboard, QPoint(1, 1));
    QApplication::sendEvent(view->viewport(), &menu);
    EXPECT_EQ(find<QMenu>("connectorMenu")->actions().last()->text(), "Copy File Name");
    delete find<QMenu>("connectorMenu");
    QTest::keyClick(view, Qt::Key_F10, Qt::ShiftModifier);
    EXPECT_EQ(find<QMenu>("connectorMenu")->actions().last()->text(), "Copy File Name");
    find<QMenu>("connectorMenu")->close();
}
