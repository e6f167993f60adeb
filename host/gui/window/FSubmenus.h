#pragma once

class FMainWindow;
class QMenu;

/** The submenus of the main window, whose entries are made when they open. */
namespace FSubmenus {

void recent(QMenu& menu, FMainWindow& window);
void examples(QMenu& menu, FMainWindow& window);
void panels(QMenu& menu, FMainWindow& window);
void appearances(QMenu& menu, FMainWindow& window);

}  // namespace FSubmenus
