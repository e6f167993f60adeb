#include "host/gui/base/FTheme.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QFont>
#include <QStyleFactory>
#include <QTemporaryDir>

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
