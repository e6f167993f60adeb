#pragma once

#include "genericintegration/io/FByteRange.h"

#include <QtGlobal>

#include <optional>
#include <string_view>

class QRegExp;

/**
 * The form of a number in output files: an optional sign, then digits after a point or digits with an optional
 * fraction, then an optional exponent. A trailing point isn't part of it. Digits of any script count.
 */
namespace FNumberPattern {

/** The form as a regular expression. */
const QRegExp& pattern();

/** The first match of the pattern in a line, at or after an offset, without decoding the line; from -1 if none. */
FByteRange next(std::string_view line, qint64 offset);

/** Reads a match of the pattern as QString::toDouble() does: none if out of range or with digits beyond ASCII. */
std::optional<double> toDouble(std::string_view number);

}  // namespace FNumberPattern
