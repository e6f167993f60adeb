#include "merix/FGuiSubcommand.h"

#include "host/core/FLogMsg.h"
#include "host/gui/window/FGuiSession.h"
#include "merix/FExitCode.h"

#include <QApplication>
#include <QRegularExpression>

std::vector<FSubcommand::Argument> FGuiSubcommand::arguments() {
    return {
        {"PROJECT", "Opened at start", &mProject},
        {"--script FILE", "Executed at start, after the project was opened", &mScript},
        {"--show WHAT", "Shows a panel, an object or a place such as mesh:12, or triggers an action; can be repeated",
         &mShown},
        {"--screenshot FILE", "Saves a picture of the window when nothing runs, or after 3 s, and ends", &mScreenshot},
        {"--size WxH", "Size of the window in pixels, such as 1280x800", &mSize}};
}

std::unique_ptr<QCoreApplication> FGuiSubcommand::makeApplication(int& argc, char** argv) const {
    const bool hasDisplay = qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY") ||
                            qEnvironmentVariableIsSet("QT_QPA_PLATFORM");
    if (!hasDisplay && !mScreenshot.empty()) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    } else if (!hasDisplay) {
        FLogMsg::error(QStringLiteral("merix"), QStringLiteral("there is no display to open a window on"),
                       QStringLiteral("Start it from a desktop; \"merix --help\" lists what works without one"));
        return nullptr;
    }
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    // No widget paints with OpenGL, whose driver would take a quarter of the time until the window is shown.
    QCoreApplication::setAttribute(Qt::AA_ForceRasterWidgets);
    return std::make_unique<QApplication>(argc, argv);
}

int FGuiSubcommand::run() const {
    FGuiSession session;
    session.project = QString::fromStdString(mProject);
    session.script = QString::fromStdString(mScript);
    session.screenshot = QString::fromStdString(mScreenshot);
    for (const std::string& what : mShown) {
        session.shown.append(QString::fromStdString(what));
    }
    if (!mSize.empty()) {
        static const QRegularExpression form(QStringLiteral("^(\\d{2,5})x(\\d{2,5})$"));
        const QRegularExpressionMatch match = form.match(QString::fromStdString(mSize));
        if (!match.hasMatch()) {
            FLogMsg::error(QStringLiteral("merix"),
                           QStringLiteral("\"%1\" is no size").arg(QString::fromStdString(mSize)),
                           QStringLiteral("Write width and height in pixels, as in --size 1280x800"));
            return FExitCode::wrongCall;
        }
        session.size = QSize(match.captured(1).toInt(), match.captured(2).toInt());
    }
    return session.run();
}
