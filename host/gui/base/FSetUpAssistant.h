#pragma once

#include "host/core/FExport.h"

#include <functional>

class QWidget;

/** Helps a user to couple a program. The window learns of it from the plug-in that has it. */
namespace FSetUpAssistant {

using Open = std::function<void(QWidget* parent)>;

/** A library calls it when it is loaded. */
MERIX_EXPORT void set(const Open& open);
MERIX_EXPORT bool isThere();
/** Opens the assistant above a window; it adds to the project what the user confirms, as one step. */
MERIX_EXPORT void open(QWidget* parent);

}  // namespace FSetUpAssistant
