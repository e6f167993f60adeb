#pragma once

#include "host/core/FExport.h"
#include "host/gui/window/FActionRow.h"

#include <QString>

#include <vector>

/** All actions of the main window, in the order of the menus. */
namespace FActionTable {

MERIX_EXPORT const std::vector<FActionRow>& rows();
/** The text of docs/reference/shortcuts.md. */
MERIX_EXPORT QString toMarkdown();

}  // namespace FActionTable
