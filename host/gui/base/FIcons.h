#pragma once

#include "host/core/FExport.h"

#include <QIcon>
#include <QString>

/**
 * Icons by name: the drawings of the program, else the icons of the desktop's theme, else Debian's Breeze theme. All of
 * them follow a change of the palette.
 */
class MERIX_EXPORT FIcons {
 public:
    /**
     * A null icon if there is none of that name.
     * @param name  or the path of an SVG drawing in the resources, which begins with ":/"
     */
    static QIcon get(const QString& name);
    /** Chooses the light or dark icons of the theme. */
    static void followPalette();
};
