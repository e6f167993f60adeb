#pragma once

#include "host/gui/window/FSituation.h"

class FMainWindow;
class QMenu;

/** One action of the window. Menus, toolbar, Find and the list of shortcuts are made from these rows. */
struct FActionRow {
    const char* id;              //!< also the object name of the action
    const char* menu = nullptr;  //!< title of its menu, with its access key; FActionTable sets it
    int group = 0;               //!< within the menu; a line separates groups
    const char* text;            //!< with its access key
    const char* icon;
    const char* shortcut = "";  //!< as QKeySequence::PortableText; empty for none
    const char* tip;
    bool isInToolbar = false;
    bool isForScripts = false;  //!< also possible while a script is being executed
    /** Why the action isn't possible; null if it is. A null function stands for an action that always is. */
    const char* (*whyNot)(const FSituation& situation) = nullptr;
    void (*run)(FMainWindow& window) = nullptr;
    /** For a submenu, whose entries are made each time that it opens; `run` is null then. */
    void (*fill)(QMenu& menu, FMainWindow& window) = nullptr;
    /** A text that depends on the situation; null for `text`. */
    QString (*textNow)(const FSituation& situation) = nullptr;
    /** For a setting that `run` switches: whether it is on. */
    bool (*isOn)() = nullptr;
};
