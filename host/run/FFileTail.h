#pragma once

#include "host/core/FExport.h"

#include <QString>

/**
 * The last lines of a text file for a message, at most that many and at most the last 4 KiB, joined by line feeds.
 *
 * Takes any bytes: what isn't UTF-8 or would steer a terminal comes as U+FFFD, every kind of line end counts as one,
 * and blank lines are left out. Empty if there is no such regular file. The size of the file doesn't matter.
 */
MERIX_EXPORT QString fileTail(const QString& file, int lines);
