#pragma once

#include "host/core/FExport.h"
#include "host/run/FRunRecord.h"

#include <QPainterPath>

/** The state of a run as a sign of a few lines, which can be told apart without colours. */
namespace FRunSign {

/** Lines within a square of side 1, to be drawn with a pen. */
MERIX_EXPORT QPainterPath of(FRunRecord::State state);

}  // namespace FRunSign
