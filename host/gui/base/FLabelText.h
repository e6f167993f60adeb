#pragma once

#include "host/core/FExport.h"

#include <QString>

/** Texts of menus, tabs and buttons, which take "&" for the mark of an access key. */
namespace FLabelText {

/** A text that is shown as it is. */
MERIX_EXPORT QString literal(QString text);

}  // namespace FLabelText
