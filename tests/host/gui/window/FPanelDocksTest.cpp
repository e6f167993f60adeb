#include "tests/support/window/FWindowTest.h"

#include <QAction>
#include <QApplication>
#include <QContextMenuEvent>
#include <QDockWidget>
#include <QMenu>
#include <QTabBar>

namespace {

class FPanelDocksTest : public FWindowTest {
 public:
    FPanelDocksTest() {
        EXPECT_TRUE(run("parameter p(1)"));
        settle();
    }

    QDockWidget& dock(const QString& panel) { return *window().panels().dockOf(panel); }
    bool hasTitleBar(const QString& panel) {
        settle();
        return !dock(panel).titleBarWidget();
    }
    QTabBar* tabsWith(const QString& title) {
        for (QTabBar* tabs : window().findChildren<QTabBar*>(QString(), Qt::FindDirectChildrenOnly)) {
            for (int tab = 0; tab < tabs->count(); ++tab) {
                if (tabs->tabText(tab) == title) {
                    return tabs;
                }
            }
        }
        return nullptr;
    }
    /** Chooses from the menu that a key opens on a tab. */
    void choose(QTabBar& tabs, const QString& text) {
        QContextMenuEvent request(QContextMenuEvent::Keyboard, tabs.rect().center());
        QApplication::sendEvent(&tabs, &request);
        chooseFrom(*find<QMenu>("panelMenu"), text);
    }
    void chooseFrom(QMenu& menu, const QString& text) {
        for (QAction* action : menu.actions()) {
            if (action->text().remove('&') == text) {
                EXPECT_TRUE(action->isEnabled());
                action->trigger();
            }
        }
        menu.close();
        settle();
    }
};

}  // namespace

TEST_F(FPanelDocksTest, aTitleIsShownOnceAndPanelsMoveByMenu) {
    EXPECT_TRUE(hasTitleBar("objects")) << "it has no tab";
    for (const char* panel : {"runs", "log", "editor", "help"}) {
        EXPECT_FALSE(hasTitleBar(panel)) << panel;
    }
    openPanel("log");
    choose(*tabsWith("Log"), "To the left");
    EXPECT_EQ(window().dockWidgetArea(&dock("log")), Qt::LeftDockWidgetArea);
    EXPECT_FALSE(hasTitleBar("log"));
    EXPECT_FALSE(hasTitleBar("objects")) << "now it has a tab";
    EXPECT_TRUE(dock("log").widget()->isVisible());

    auto* move = action("movePanel")->menu();
    emit move->aboutToShow();
    chooseFrom(*move, "Own window");
    EXPECT_TRUE(dock("log").isFloating());
    EXPECT_TRUE(hasTitleBar("log"));
    EXPECT_TRUE(hasTitleBar("objects"));
    emit move->aboutToShow();
    chooseFrom(*move, "To the right");
    EXPECT_FALSE(dock("log").isFloating());
    EXPECT_EQ(window().tabifiedDockWidgets(&dock("log")).size(), 2);
    emit move->aboutToShow();
    chooseFrom(*move, "Hide");
    EXPECT_TRUE(dock("log").isHidden());
    trigger("resetLayout");
    EXPECT_FALSE(hasTitleBar("log"));
    EXPECT_TRUE(hasTitleBar("objects"));
}

TEST_F(FPanelDocksTest, aTabDraggedOutOfItsGroupMovesItsPanel) {
    QTabBar* tabs = tabsWith("Console");
    ASSERT_NE(tabs, nullptr);
    int console = 0;
    while (tabs->tabText(console) != "Console") {
        ++console;
    }
    const QPoint start = tabs->tabRect(console).center();
    QTest::mousePress(tabs, Qt::LeftButton, {}, start);
    for (int step = 1; step < 12; ++step) {
        QMouseEvent move(QEvent::MouseMove, start - QPoint(step, step * 15), Qt::NoButton, Qt::LeftButton, {});
        QApplication::sendEvent(tabs, &move);
    }
    QTest::mouseRelease(tabs, Qt::LeftButton, {}, start - QPoint(12, 180));
    settle();
    EXPECT_TRUE(dock("console").isFloating() ||
                !window().tabifiedDockWidgets(&dock("console")).contains(&dock("runs")));
}

TEST_F(FPanelDocksTest, theKeyboardPassesByWhatIsBehindOthers) {
    openPanel("runs");
    const QWidget* start = QApplication::focusWidget();
    ASSERT_TRUE(dock("runs").isAncestorOf(start));
    for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Backtab}) {
        int steps = 0;
        do {
            press(QApplication::focusWidget(), key);
            for (const char* behind : {"log", "console", "help"}) {
                EXPECT_FALSE(dock(behind).isAncestorOf(QApplication::focusWidget())) << behind;
            }
        } while (QApplication::focusWidget() != start && ++steps < 100);
        EXPECT_GT(steps, 5);
        EXPECT_LT(steps, 100);
    }
}
