#pragma once

#include "host/core/FExport.h"

#include <QStringList>

/**
 * The one of `known` that a writer of `name` most likely meant, for a "did you mean …"; empty if none is close.
 * Close is what takes at most two steps, and fewer than half as many as `name` has characters; a step inserts, drops
 * or replaces a character or swaps two neighbours. Upper and lower case are the same, unless they decide between
 * equally close ones; after that the first one wins. Linear in the length of all names.
 */
MERIX_EXPORT QString nearestName(const QString& name, const QStringList& known);
