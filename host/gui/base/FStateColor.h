#pragma once

#include "host/core/FExport.h"

#include <QColor>

class QPalette;

/**
 * Colours of texts that show a state, readable on the backgrounds of the present palette. A word or a symbol always
 * accompanies them.
 */
namespace FStateColor {

enum class State {
    Good,
    Warning,
    Bad,
    Secondary,  //!< defaults, hints and what is less important
};

MERIX_EXPORT QColor of(State state);
/** The same on another palette than the present one. */
MERIX_EXPORT QColor of(State state, const QPalette& palette);
/** A background of that state, on which ordinary text is readable. */
MERIX_EXPORT QColor backgroundOf(State state);
/** Whether the program's palette is a dark one. */
MERIX_EXPORT bool isDark();

}  // namespace FStateColor
