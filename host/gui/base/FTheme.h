#pragma once

#include "host/core/FExport.h"

#include <QPalette>

/** The appearance of the program: that of the desktop, or a light or dark one of its own. */
class MERIX_EXPORT FTheme {
 public:
    enum class Appearance { Desktop, Light, Dark };

    /** The appearance that the user has chosen; that of the desktop by default. */
    static Appearance getChosen();
    /** Changes the appearance of the whole program, and remembers it in the settings. */
    static void choose(Appearance appearance);
    /** Takes on the style of the program and the chosen appearance; called once at start. */
    static void install();
    /** The palette of the light appearance, for what is printed or handed on. */
    static QPalette lightPalette();

 private:
    static void apply(Appearance appearance);
};
