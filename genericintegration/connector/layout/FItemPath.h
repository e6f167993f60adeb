#pragma once

#include <QString>

/** Names of the files of items, made from their paths. */
namespace FItemPath {

/** The path below a base, without a separator before it; empty if it isn't below the base. */
QString belowBase(const QString& path, const QString& base);
/** The folder below a base that a file is in, with a separator after it; empty if it isn't below the base. */
QString folderBelow(const QString& path, const QString& base);
/** The path of the file of the same name in a folder. */
QString inFolder(const QString& path, const QString& folder);
/** The path without the base, wherever it occurs, and without a separator before it. */
QString withoutBase(const QString& path, const QString& base);

}  // namespace FItemPath
