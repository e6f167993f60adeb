#include "host/gui/window/FGuiSession.h"

#include "host/core/FHistory.h"
#include "host/core/FLogMsg.h"
#include "host/core/FPrototypes.h"
#include "host/core/FSelectionSet.h"
#include "host/gui/base/FRunTarget.h"
#include "host/gui/base/FTheme.h"
#include "host/gui/window/FMainWindow.h"
#include "host/gui/window/FProjectFiles.h"
#include "host/gui/window/FWindowUserInterface.h"
#include "host/script/FProject.h"

#include <QApplication>
#include <QTimer>

namespace {

/** Exit codes of the program. */
constexpr int scriptFailed = 1;
constexpr int fileError = 3;

/** Calls a function when nothing runs and all that was posted has been handled. */
void whenIdle(QObject* context, const std::function<void()>& function) {
    constexpr int settle = 500;  // milliseconds, longer than any delay of a panel
    QTimer::singleShot(settle, context,
                       [context, function] { FRunTarget::isAnyRunning() ? whenIdle(context, function) : function(); });
}

}  // namespace

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
        if (!project.isEmpty()) {
            window.projectFiles().open(project);
        }
        if (!script.isEmpty() && !window.projectFiles().executeScript(script)) {
            exitCode = scriptFailed;
        }
        if (!screenshot.isEmpty()) {
            whenIdle(&window, [&] {
                if (!window.grab().save(screenshot)) {
                    FLogMsg::error(QStringLiteral("merix"),
                                   QStringLiteral("can't write the picture \"%1\"").arg(screenshot),
                                   QStringLiteral("Name a file that ends in .png, in a folder that exists"));
                    exitCode = fileError;
                }
                QApplication::quit();
            });
        }
        QApplication::exec();
        FUserInterface::replace(nullptr);
    }
    FProject::instance()->close(false);
    FSelectionSet::instance()->clear(false);
    FHistory::instance()->clear();
    return exitCode;
}
