#pragma once

#include "host/core/FExport.h"

#include <QFont>

/** The font for file contents, numbers and names of files. */
class MERIX_EXPORT FFixedFont {
 public:
    /** The desktop's font with characters of equal width, in the size of the program's other texts. */
    static QFont get();
    /** A family with that size; if it isn't installed, the font above. A user's larger size applies in any case. */
    static QFont named(const QString& family, qreal points);
};
