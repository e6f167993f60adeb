#include "tests/support/window/FWindowTest.h"

#include "host/core/FHistory.h"
#include "host/core/FIni.h"
#include "host/core/FSelectionSet.h"
#include "host/gui/window/FActions.h"
#include "host/script/FProject.h"

#include <QAction>
#include <QLineEdit>

FWindowTest::FWindowTest() {
    FIni().clear();
    FProject::instance()->create();
    restart();
}

FWindowTest::~FWindowTest() {
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    EXPECT_EQ(QApplication::mouseButtons(), Qt::NoButton) << "it would be pressed in the next test";
    FUserInterface::replace(nullptr);
    mpWindow.reset();
    FProject::instance()->close(false);
    FSelectionSet::instance()->clear(false);
}

void FWindowTest::restart() {
    FUserInterface::replace(nullptr);
    mpWindow.reset();
    mpWindow = std::make_unique<FMainWindow>();
    mpInterface = std::make_unique<FAnsweringInterface>(*mpWindow);
    FUserInterface::replace(mpInterface.get());
    mpWindow->show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(mpWindow.get()));
    settle();
}

QAction* FWindowTest::action(const QString& id) {
    QAction* found = mpWindow->actions().get(id);
    EXPECT_NE(found, nullptr) << "no action " << id.toStdString();
    return found;
}

void FWindowTest::trigger(const QString& id) {
    settle();
    EXPECT_TRUE(action(id)->isEnabled()) << id.toStdString() << " isn't possible";
    action(id)->trigger();
    settle();
}

void FWindowTest::openPanel(const QString& id) {
    mpWindow->panels().raise(id);
    settle();
}

void FWindowTest::enter(const QString& statement) {
    auto* line = find<QLineEdit>(QStringLiteral("consoleLine"));
    line->setText(statement);
    press(line, Qt::Key_Return);
    settle();
}

void FWindowTest::undoAndRedoAll(const std::function<void()>& check) {
    const QString text = savedModel();
    int steps = 0;
    while (FHistory::instance()->undo()) {
        ++steps;
    }
    check();
    EXPECT_TRUE(FObjectManager::instance()->getManaged(FManaged::null()).isEmpty());
    for (; steps > 0; --steps) {
        FHistory::instance()->redo();
    }
    check();
    EXPECT_EQ(savedModel().toStdString(), text.toStdString());
}

void FWindowTest::settle() {
    // What is handled may post more.
    constexpr int rounds = 5;
    for (int round = 0; round < rounds; ++round) {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

QStringList FWindowTest::rowsOf(const QAbstractItemModel& model, const QModelIndex& parent, int depth) {
    QStringList rows;
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        rows.append(QString(2 * depth, QLatin1Char(' ')) + index.data().toString());
        rows.append(rowsOf(model, index, depth + 1));
    }
    return rows;
}
