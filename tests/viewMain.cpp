#include "host/gui/base/FTheme.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QFont>
#include <QStyleFactory>
#include <QTemporaryDir>

// What Qt and its libraries keep until the end, such as the screens of the offscreen platform. A leak of an object of
// ours is found all the same: it is allocated by our code.
extern "C" Q_DECL_EXPORT const char* __lsan_default_suppressions();
extern "C" const char* __lsan_default_suppressions() {
    return "leak:libQt5Core.so\nleak:libQt5Gui.so\nleak:libQt5Widgets.so\nleak:libqoffscreen.so\nleak:libfontconfig."
           "so\n";
}

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QTemporaryDir settings;
    qputenv("MERIX_SETTINGS", settings.filePath(QStringLiteral("merix.ini")).toLocal8Bit());
    QApplication application(argc, argv);
    // Alike on every machine.
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setFont(QFont(QStringLiteral("DejaVu Sans"), 9));
    QApplication::setCursorFlashTime(0);
    FTheme::install();
    return RUN_ALL_TESTS();
}
