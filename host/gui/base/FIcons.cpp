#include "host/gui/base/FIcons.h"

#include "host/gui/base/FStateColor.h"
#include "host/gui/base/FSvgIconEngine.h"

#include <QFile>
#include <QStandardPaths>

QIcon FIcons::get(const QString& name) {
    const QString drawing = name.startsWith(QLatin1String(":/")) ? name : QStringLiteral(":/icons/%1.svg").arg(name);
    return QFile::exists(drawing) ? QIcon(new FSvgIconEngine(drawing)) : QIcon::fromTheme(name);
}

void FIcons::followPalette() {
    const QString breeze = FStateColor::isDark() ? QStringLiteral("breeze-dark") : QStringLiteral("breeze");
    static const bool hasTheme = !QIcon::themeName().isEmpty();
    const QStringList folders = QStandardPaths::locateAll(QStandardPaths::GenericDataLocation, QStringLiteral("icons"),
                                                          QStandardPaths::LocateDirectory);
    QStringList known = QIcon::themeSearchPaths();
    for (const QString& folder : folders) {
        if (!known.contains(folder)) {
            known.append(folder);
        }
    }
    QIcon::setThemeSearchPaths(known);
    QIcon::setFallbackThemeName(breeze);
    // Also makes icons that were loaded before look for their files again.
    QIcon::setThemeName(hasTheme ? QIcon::themeName() : breeze);
}
