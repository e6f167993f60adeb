#pragma once

#include <QHash>
#include <QString>

/** Where the tags of all input templates of a definition use the rows of the value table. */
struct FTagUses {
    QHash<int, QString> places;  //!< of the first tag of each row, as template:line:column
    /** Of the first tag of each row that has more text after it in its line, in a column of its own. */
    QHash<int, QString> columnPlaces;
    /** Of the first tag of each row that has more text after it in its line. */
    QHash<int, QString> fieldPlaces;
    bool isCut = false;  //!< a tag isn't closed, so that it isn't known what the rest of its template names
};
