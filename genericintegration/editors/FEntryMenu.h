#pragma once

#include <QString>

#include <functional>

class FDefinitionGenInt;
class QAction;
class QMenu;

/** Fills a menu with the names that tags can use: the definition's entries, and the files that it makes. */
namespace FEntryMenu {

/** Adds an action for a name, whose data is the name as tags spell it. */
using Connect = std::function<void(QAction* action)>;

/** Groups become submenus. The files are in that of exports, if the definition has such a group. */
void fill(QMenu& menu, const FDefinitionGenInt& definition, const Connect& connect);

}  // namespace FEntryMenu
