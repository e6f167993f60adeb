#include "host/gui/base/FTheme.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QFont>
#include <QStyleFactory>
#include <QTemporaryDir>

// What Qt keeps until the end for the screen of the offscreen platform, and what fontconfig keeps. A leak of a QObject
// of ours is found all the same: only what its constructor allocates is left out. The button that clears a line fades
// out with an animation that Qt deletes when it stops; it is still running where the test was the last of the process.
extern "C" Q_DECL_EXPORT const char* __lsan_default_suppressions();
extern "C" const char* __lsan_default_suppressions() {
    return "leak:libqoffscreen.so\nleak:libfontconfig.so\nleak:QScreen::QScreen\nleak:QObject::QObject\n"
           "leak:QWindowSystemInterface::handleScreenAdded\nleak:QtSharedPointer::ExternalRefCountData\n"
           "leak:QPropertyAnimation::QPropertyAnimation\n";
}

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // Not the settings and the unsaved work of the user.
    const QTemporaryDir home;
    qputenv("MERIX_SETTINGS", home.filePath(QStringLiteral("merix.ini")).toLocal8Bit());
    qputenv("XDG_STATE_HOME", home.path().toLocal8Bit());
    QApplication application(argc, argv);
    // Alike on every machine.
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setFont(QFont(QStringLiteral("DejaVu Sans"), 9));
    QApplication::setCursorFlashTime(0);
    FTheme::install();
    return RUN_ALL_TESTS();
}
