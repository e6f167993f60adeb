#pragma once

#include "host/core/FExport.h"
#include "host/core/FUserInterface.h"

/** Whether there are windows. */
class MERIX_EXPORT FViewCtrl {
 public:
    static FViewCtrl* instance();

    bool hasGui() const { return FUserInterface::instance()->hasGui(); }
    /** The two stand around a dialog that blocks the other windows. */
    static void prepareModalDialog(void* parent);
    static void finalizeModalDialog();
};

/** The tree of all objects. */
class MERIX_EXPORT FObjectTree {
 public:
    /** Shows the objects in the tree. */
    static void highlight(const QList<FExprBase>& objects) { FUserInterface::instance()->highlight(objects); }
};
