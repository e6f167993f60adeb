#pragma once

#include "host/core/FExport.h"

#include <QColor>

/** The colours of texts in editors, which are chosen for a light palette and may be set by a style sheet. */
namespace FTextColor {

/** How a colour appears in the present palette: in a dark one, the usual colours of editors become readable ones. */
MERIX_EXPORT QColor foreground(const QColor& color);
MERIX_EXPORT QColor background(const QColor& color);

}  // namespace FTextColor
