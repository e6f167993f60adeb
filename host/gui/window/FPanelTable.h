#pragma once

#include "host/core/FExport.h"

#include <Qt>

#include <vector>

class FMainWindow;
class QWidget;

/** One panel of the window. */
struct FPanelRow {
    const char* id;  //!< object name of the panel; that of its dock has "Dock" at the end
    const char* title;
    const char* icon;
    Qt::DockWidgetArea area;
    const char* shortcut;  //!< shows the panel, and gives it the focus
    const char* focus;     //!< object name of the widget in the panel that gets it
    QWidget* (*make)(FMainWindow& window);
};

/** All panels of the main window, in the order of the View menu. */
namespace FPanelTable {

MERIX_EXPORT const std::vector<FPanelRow>& rows();

}  // namespace FPanelTable
