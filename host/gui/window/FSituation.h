#pragma once

#include "host/core/FExport.h"

#include <QString>

class FExternComputation;
class FRunTarget;
class FUnsavedWork;

/** What the actions of the window depend on. */
struct MERIX_EXPORT FSituation {
    static FSituation now(const FRunTarget& target, const FUnsavedWork& unsaved);

    bool hasProject = false;  //!< the model holds something, or there is a file
    bool hasFile = false;
    bool isUnsaved = false;
    int selected = 0;                           //!< number of selected objects; 0 if something else is selected
    bool isPageFocused = false;                 //!< the focus is in a page, not where objects are selected
    bool isPartFocused = false;                 //!< of the page in front, a part that can be deleted
    FExternComputation* computation = nullptr;  //!< the one that Run acts on
    bool isRunning = false;                     //!< that computation runs
    bool isAnyRunning = false;
    bool isLocked = false;  //!< a script is being executed: nothing is possible but to stop it
    bool canReread = false;
    bool hasResults = false;
    QString undoLabel;  //!< null if nothing can be undone
    QString redoLabel;  //!< null if nothing can be redone
};
