#pragma once

#include "host/core/FExport.h"

#include <functional>

class FManaged;
class QMenu;

/** The objects that a user can add to the project by hand. Each is one step. */
namespace FNewObjectMenu {

/** Appends the submenu. @param added  is called with a new object */
MERIX_EXPORT void append(QMenu& menu, const std::function<void(FManaged*)>& added);

}  // namespace FNewObjectMenu
