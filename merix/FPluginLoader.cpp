#include "merix/FPluginLoader.h"

#include "host/core/FLogMsg.h"

#include <QCoreApplication>
#include <QDir>
#include <QLibrary>

namespace {

QStringList folders() {
    const QString named = qEnvironmentVariable("MERIX_PLUGIN_PATH");
    if (!named.isEmpty()) {
        return named.split(QDir::listSeparator(), Qt::SkipEmptyParts);
    }
    const QDir program(QCoreApplication::applicationDirPath());
    return {program.filePath(QStringLiteral("plugins")), program.filePath(QStringLiteral("../lib/merix/plugins"))};
}

}  // namespace

bool FPluginLoader::loadAll() {
    for (const QString& folder : folders()) {
        const QDir dir(folder);
        for (const QString& file : dir.entryList({QStringLiteral("*.so")}, QDir::Files, QDir::Name)) {
            QLibrary library(dir.filePath(file));
            if (!library.load()) {
                FLogMsg::error(QStringLiteral("merix"),
                               QStringLiteral("can't load the plug-in: %1").arg(library.errorString()));
                return false;
            }
        }
    }
    return true;
}
