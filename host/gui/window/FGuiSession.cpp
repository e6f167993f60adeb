#include "host/gui/window/FGuiSession.h"

#include "host/core/FHistory.h"
#include "host/core/FLogMsg.h"
#include "host/core/FMerixCtrl.h"
#include "host/core/FObjectManager.h"
#include "host/core/FPrototypes.h"
#include "host/core/FSelectionSet.h"
#include "host/gui/base/FRunTarget.h"
#include "host/gui/base/FTheme.h"
#include "host/gui/window/FActions.h"
#include "host/gui/window/FMainWindow.h"
#include "host/gui/window/FPanelDocks.h"
#include "host/gui/window/FProjectFiles.h"
#include "host/gui/window/FWindowUserInterface.h"
#include "host/script/FProject.h"

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QPainter>
#include <QTimer>

namespace {

/** Exit codes of the program. */
constexpr int scriptFailed = 1;
constexpr int fileError = 3;

/** Calls a function when nothing runs and all that was posted has been handled, or after some seconds. */
void whenIdle(QObject* context, const std::function<void()>& function, int rounds) {
    constexpr int settle = 500;  // milliseconds, longer than any delay of a panel
    QTimer::singleShot(settle, context, [context, function, rounds] {
        if (rounds > 1 && FRunTarget::isAnyRunning()) {
            whenIdle(context, function, rounds - 1);
        } else {
            function();
        }
    });
}

/** The window with its dialogs. */
QPixmap pictureOf(QWidget& window) {
    QPixmap picture = window.grab();
    QPainter painter(&picture);
    for (QDialog* dialog : window.findChildren<QDialog*>()) {
        if (dialog->isVisible()) {
            const QRect place(window.mapFromGlobal(dialog->mapToGlobal(QPoint())), dialog->size());
            painter.drawPixmap(place.topLeft(), dialog->grab());
            painter.drawRect(place.adjusted(-1, -1, 0, 0));
        }
    }
    return picture;
}

}  // namespace

void FGuiSession::show(FMainWindow& window) const {
    for (const QString& what : shown) {
        if (window.panels().dockOf(what)) {
            window.panels().raise(what);
        } else if (QAction* action = window.actions().get(what)) {
            action->trigger();
        } else if (FObjectManager::instance()->find(what.section(QLatin1Char(':'), 0, 0))) {
            window.showPlace(what, QString());
        } else {
            FLogMsg::warning(QStringLiteral("merix"),
                             QStringLiteral("there is no panel, action or object \"%1\"").arg(what),
                             QStringLiteral("It isn't shown"));
        }
        QCoreApplication::sendPostedEvents();
    }
}

int FGuiSession::run() const {
    FTheme::install();
    FPrototypes::buildPending();
    int exitCode = 0;
    {
        FMainWindow window;
        FWindowUserInterface userInterface(window);
        FUserInterface::replace(&userInterface);
        if (size.isValid()) {
            window.resize(size);
        }
        window.show();
        if (screenshot.isEmpty()) {
            FProject::instance()->keepUnnamed(true);
        }
        if (!project.isEmpty()) {
            window.projectFiles().open(project);
            const bool isOpen = !FMerixCtrl::instance()->getProjectFile().isEmpty();
            exitCode = isOpen || screenshot.isEmpty() ? exitCode : fileError;
        }
        if (!script.isEmpty() && !window.projectFiles().executeScript(script)) {
            exitCode = scriptFailed;
        }
        show(window);
        if (!screenshot.isEmpty()) {
            constexpr int rounds = 6;
            const auto take = [&] {
                if (!pictureOf(window).save(screenshot)) {
                    FLogMsg::error(QStringLiteral("merix"),
                                   QStringLiteral("can't write the picture \"%1\"").arg(screenshot),
                                   QStringLiteral("Name a file that ends in .png, in a folder that exists"));
                    exitCode = fileError;
                }
                QApplication::quit();
            };
            whenIdle(&window, take, rounds);
        }
        QApplication::exec();
        FUserInterface::replace(nullptr);
    }
    FProject::instance()->close(false);
    FSelectionSet::instance()->clear(false);
    FHistory::instance()->clear();
    return exitCode;
}
