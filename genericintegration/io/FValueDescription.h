#pragma once

#include <QString>

#include "genericintegration/io/FAnchor.h"

/**
 * Where in an output file a value stands.
 *
 * Without an average, the line is counted from the anchor: 0 is the rest of its line, 1 the line below, -1 the line
 * above. With no anchor, or one that isn't in the file, 0 is the first line of the file and -1 the last one with text.
 * A line below 0 never reaches the first line of the text it counts in, but gives the second, or none.
 */
struct FValueDescription {
    QString name;
    int line = 0;
    int column = 0;  //!< from 0; below 0 is 0
    FAnchor anchor;
    bool average = false;     //!< of the file's last rows; line and anchor then play no part
    quint32 averageRows = 0;  //!< how many last lines; those without a number don't count

    bool operator==(const FValueDescription&) const = default;
};
