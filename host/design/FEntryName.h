#pragma once

#include "host/core/FExport.h"

#include <QString>
#include <QStringList>

/**
 * Names of entries, and paths of names. A name may hold anything but `|`, `[`, `]`, `<`, `>` and line ends, since tags
 * and indices are written with those.
 */

/** True for a text that can be a name; an empty one can't. */
MERIX_EXPORT bool isEntryName(const QString& text);

/** `text` with a `_` for each character that a name can't have; "newEntry" for an empty one. */
MERIX_EXPORT QString legalEntryName(const QString& text);

/**
 * The names of a path, outermost first. Empty, with a reason for the user, if the path isn't one: a level is no name,
 * or there are more than mostEntryLevels.
 */
MERIX_EXPORT QStringList splitEntryPath(const QString& path, QString& reason);

/** Groups within one another, with the entry itself. */
constexpr int mostEntryLevels = 50;
