#pragma once

#include "host/core/FExport.h"

#include <QString>

/**
 * The last lines of a text file for a message, at most `lines` and at most 4 KiB, joined by line feeds.
 *
 * Any bytes are accepted: invalid UTF-8 and control characters become U+FFFD, all kinds of line ends are recognised,
 * and blank lines are left out. Empty if there is no such regular file. The time doesn't depend on the size of the
 * file.
 */
MERIX_EXPORT QString fileTail(const QString& file, int lines);
