#pragma once

#include "genericintegration/io/FAnchor.h"

#include <QString>

/**
 * Where a value is in an output file.
 *
 * Without an average, the line is counted from the anchor: 0 is the rest of its line, 1 the line below, -1 the line
 * above. Without an anchor, or if the file doesn't contain it, 0 is the first line of the file and -1 the last one with
 * text. A line below 0 never reaches the first line of the text that it counts in: it gives the second one, or none.
 */
struct FValueDescription {
    QString name;
    int line = 0;
    int column = 0;  //!< from 0; below 0 counts as 0
    FAnchor anchor;
    bool average = false;     //!< over the last rows of the file; line and anchor are ignored
    quint32 averageRows = 0;  //!< number of last lines; those without a number don't count

    bool operator==(const FValueDescription&) const = default;
};
