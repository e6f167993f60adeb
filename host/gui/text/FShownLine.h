#pragma once

#include "host/core/FExport.h"

#include <QString>

#include <string_view>
#include <vector>

/**
 * A piece of a line as a viewer shows it, in cells of equal width: tabs become blanks up to the next multiple of 8
 * cells; control characters and bytes that aren't UTF-8 become U+FFFD. Any bytes are accepted.
 */
struct MERIX_EXPORT FShownLine {
    /**
     * @param text   without line end
     * @param cells  how many cells are needed; the rest of the text isn't decoded
     */
    FShownLine(std::string_view text, int cells);

    /** The cell that shows the byte at an offset; the number of cells for one beyond them. */
    int cellOf(qint64 offset) const;

    QString text;                 //!< a UTF-16 unit for each cell
    std::vector<qint64> offsets;  //!< for each cell, the offset of the character that it shows; then that of the end
};
