#pragma once

#include "host/core/FExport.h"
#include "host/run/FNumberOrigin.h"

#include <QString>

/** The words for what was unusual about a number that was read from a file. */
namespace FValueRemark {

/** What is unusual, as the end of a sentence about the number: "is followed by D-01". Empty without flags. */
MERIX_EXPORT QString text(const FNumberOrigin& origin, double number);

/** What can be done about it. Empty without flags. */
MERIX_EXPORT QString remedy(FNumberFlags flags);

}  // namespace FValueRemark
