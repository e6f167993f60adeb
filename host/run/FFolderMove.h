#pragma once

#include "host/core/FExport.h"

#include <QString>

/** Moves the contents of a folder, also to another disk. */
class MERIX_EXPORT FFolderMove {
 public:
    /**
     * @param from  a folder, which is gone afterwards
     * @param to    a folder, created if it doesn't exist; files of equal names must not be there
     * @return the reason of a failure, for the user. Nothing is then missing in `from`, but a part may be in `to`, too.
     */
    static QString move(const QString& from, const QString& to);
};
