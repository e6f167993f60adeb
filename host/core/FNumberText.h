#pragma once

#include "host/core/FExport.h"

#include <QString>

#include <optional>

/**
 * The text of a number, in the C locale whatever the locale of the program is.
 * It is the shortest text that numberFromText reads back to the same double, except that whole numbers below 1e15 in
 * magnitude are plain digits: 0.1, 100000, -0, 1e-07, 1.5e+20, NaN, Inf, -Inf.
 */
MERIX_EXPORT QString numberText(double value);

/**
 * The number that the whole of `text` is: digits with or without point and exponent, a minus before it, or what
 * numberText writes for numbers that aren't finite. Blanks and a plus are refused. What is too large for a double is
 * infinite, what is too small is 0.
 */
MERIX_EXPORT std::optional<double> numberFromText(QStringView text);
