#pragma once

#include "host/core/FExport.h"

#include <QString>

/**
 * A place in a script. Lines and columns count from 1; a column is a UTF-16 unit, a tab is one, and a line ends at
 * LF, CR LF or CR, also inside a text.
 */
struct MERIX_EXPORT FPlace {
    int line = 1;
    int column = 1;

    /** "file:line:column", without the file if that is empty: how each message about a script begins. */
    QString toString(const QString& file) const {
        const QString place = QString::number(line) + QLatin1Char(':') + QString::number(column);
        return file.isEmpty() ? place : file + QLatin1Char(':') + place;
    }

    friend bool operator==(const FPlace&, const FPlace&) = default;
};
