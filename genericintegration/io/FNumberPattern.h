#pragma once

#include <QtGlobal>

#include <optional>
#include <string_view>

#include "genericintegration/io/FByteRange.h"

class QRegExp;

/**
 * What the reader takes for a number: an optional sign, then digits after a point or digits with an optional fraction,
 * then an optional exponent. A trailing point isn't part of it. Digits are those of any script.
 */
namespace FNumberPattern {

/** As a regular expression. */
const QRegExp& pattern();

/**
 * The same as the pattern's first match in a line, from an offset on, but without decoding the line; it begins at -1
 * for none.
 */
FByteRange next(std::string_view line, qint64 offset);

/**
 * A match of the pattern as a double, as QString reads it: nothing for one out of range or with digits that aren't
 * ASCII.
 */
std::optional<double> toDouble(std::string_view number);

}  // namespace FNumberPattern
