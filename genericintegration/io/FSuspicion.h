#pragma once

#include "genericintegration/io/FByteRange.h"
#include "genericintegration/io/FFoundValue.h"

#include <QString>

#include <string_view>

class FResultText;

/** Finds signs that a number was cut off or skipped, or isn't a number. They don't change the number. */
namespace FSuspicion {

/** Flags of a number that count as several columns, or as none. */
constexpr FFoundFlags shiftingFlags = FFoundFlag::CutExponent | FFoundFlag::PointExponent | FFoundFlag::SpacedExponent |
                                      FFoundFlag::DecimalComma | FFoundFlag::ThousandsSeparator | FFoundFlag::Stars |
                                      FFoundFlag::NanOrInf;

/** Signs around a number of a line. The line may begin after an anchor. */
FFoundFlags ofNumber(std::string_view text, FByteRange number, qint64 lineBegin);

/** Whether a number may have shifting flags; a fast check. */
bool mayShift(std::string_view text, qint64 numberEnd);

/** Signs in a part of a line without a number. `oddity` becomes the range of the first one, if it is empty. */
FFoundFlags ofGap(std::string_view text, FByteRange gap, FByteRange& oddity);

/** Whether ofGap() may find anything in a part of a text. Fast; may return true without need. */
bool mayBeIn(std::string_view text);

/** Signs in a column between separators that isn't a finite number. */
FFoundFlags ofColumn(const QString& text);

/** Signs around a number that is a column between separators. */
FFoundFlags around(const QString& line, int begin, int end);

/** Columns of a part of a line that contain two numbers each: "1.234-5.678", "12.5****". The first one, or empty. */
QString fusedIn(const QString& part);

/** The text to show for the flags of a number: what is beside it. */
QString beside(std::string_view text, FByteRange number, FFoundFlags flags);

/** The number with what is beside it, for a message. */
QString word(std::string_view text, FByteRange number, FFoundFlags flags);

/** The end of a number of a line with an exponent that isn't read, as in 1.0D+05; its own end if there is none. */
qint64 exponentEnd(std::string_view line, FByteRange number);

/** Flags of a line from which a value is read. Fast. */
FFoundFlags ofLine(std::string_view line);

/** Flags of a whole text; it is unusual for an output file. Fast. */
FFoundFlags ofFile(const FResultText& text);

}  // namespace FSuspicion
