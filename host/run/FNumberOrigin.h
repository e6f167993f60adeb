#pragma once

#include "host/core/FExport.h"

#include <QString>
#include <QStringList>

/** Where a number was found in a file, and what was unusual about it; for showing and checking numbers. */
struct MERIX_EXPORT FNumberOrigin {
    QString text;          //!< as in the file; for a mean, the text of its last number
    qint64 line = -1;      //!< from 1; -1 if there is no such line
    qint64 column = -1;    //!< of the text's first character, from 1; -1 if nothing was found
    qint64 length = -1;    //!< in characters; -1 if nothing was found
    QStringList oddities;  //!< each in a few words, such as "anchor not found, counted from the top"

    bool operator==(const FNumberOrigin&) const = default;
};
