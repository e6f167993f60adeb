#pragma once

#include <QString>

#include <string_view>

#include "genericintegration/io/FByteRange.h"
#include "genericintegration/io/FFoundValue.h"

/** Finds signs that a number was cut off or skipped, or isn't a number. They don't change the number. */
namespace FSuspicion {

/** Signs right before and after a number in a text. */
FFoundFlags ofNumber(std::string_view text, FByteRange number);

/** Signs in a text without a number. */
FFoundFlags ofText(std::string_view text);

/** Whether ofText() may find anything in a part of a text. Fast; may return true without need. */
bool mayBeIn(std::string_view text);

/** Signs in a column that isn't a finite number. */
FFoundFlags ofColumn(const QString& text);

}  // namespace FSuspicion
