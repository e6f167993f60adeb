#pragma once

#include "host/core/FExport.h"

#include <QString>

#include <functional>

class FManaged;
class QMenu;
class QWidget;

/** The objects that a user can add to the project by hand. Each is one step. */
namespace FNewObjectMenu {

using Added = std::function<void(FManaged*)>;
/** Asks for what an object needs, above a window, and makes it as one step. Calls `added` if it did. */
using Make = std::function<void(QWidget* parent, const Added& added)>;

/** Adds objects of a library, which calls it when it is loaded. @param text  with its access key */
MERIX_EXPORT void set(const QString& text, const QString& icon, const Make& make);

/**
 * Appends the submenu.
 * @param window  that dialogs are above
 * @param added   is called with a new object
 */
MERIX_EXPORT void append(QMenu& menu, QWidget* window, const Added& added);

}  // namespace FNewObjectMenu
