#pragma once

#include "host/gui/window/FMainWindow.h"
#include "host/gui/window/FPanelDocks.h"
#include "tests/support/FModelTest.h"
#include "tests/support/waitUntil.h"
#include "tests/support/window/FAnsweringInterface.h"

#include <QtTest/QTest>

#include <memory>

/**
 * Tests of the window of the program, offscreen: on an empty project, with settings of their own. Widgets are found by
 * their object names.
 */
class FWindowTest : public FModelTest {
 public:
    FWindowTest();
    ~FWindowTest() override;

    FMainWindow& window() { return *mpWindow; }
    FAnsweringInterface& dialogs() { return *mpInterface; }
    /** A second window in place of the first, as after a restart of the program. */
    void restart();

    template <class Widget = QWidget>
    Widget* find(const QString& name) {
        auto* found = mpWindow->findChild<Widget*>(name);
        EXPECT_NE(found, nullptr) << "no widget " << name.toStdString();
        return found;
    }
    QAction* action(const QString& id);
    /** Triggers an action as its key does. */
    void trigger(const QString& id);
    /** Shows the panel and gives it the focus, as its entry in the menu does. */
    void openPanel(const QString& id);
    /** Types a statement into the console. */
    void enter(const QString& statement);
    static void type(QWidget* widget, const QString& text) { QTest::keyClicks(widget, text); }
    static void press(QWidget* widget, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(widget, key, modifiers);
    }
    /** Undoes all steps, which leads to the empty model, and redoes them, which leads to the same text. */
    static void undoAndRedoAll(const std::function<void()>& check);
    /** Handles what was posted until now. */
    static void settle();
    /** The texts of a model's rows below an index, with their children indented by two blanks. */
    static QStringList rowsOf(const QAbstractItemModel& model, const QModelIndex& parent = {}, int depth = 0);

 private:
    std::unique_ptr<FMainWindow> mpWindow;
    std::unique_ptr<FAnsweringInterface> mpInterface;
};
