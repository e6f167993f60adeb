#pragma once

#include "host/core/FExport.h"

#include <QFont>

/** The font for file contents, numbers and names of files. */
class MERIX_EXPORT FFixedFont {
 public:
    /** The desktop's font with characters of equal width, in the size of the program's other texts. */
    static QFont get();
};
