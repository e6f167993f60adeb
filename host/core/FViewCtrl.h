#pragma once

#include "host/core/FExport.h"
#include "host/core/FUserInterface.h"

/** Whether there are windows, and dialogs that block the others. */
class MERIX_EXPORT FViewCtrl {
 public:
    static FViewCtrl* instance();

    bool hasGui() const { return FUserInterface::instance()->hasGui(); }
    /** Called before and after a dialog that blocks the other windows. */
    static void prepareModalDialog(void* parent);
    static void finalizeModalDialog();
    /**
     * The file that the user chose to open; empty if the dialog was cancelled. The dialog starts in the folder
     * `directory`, which is set to that of the file.
     */
    static QString getOpenFileName(const QString& caption, QString& directory, const QString& filter);
    /** The file that the user chose to save to; empty if the dialog was cancelled. */
    static QString getSaveFileName(const QString& caption, const QString& startPath, const QString& filter);
};

/** The tree of all objects. */
class MERIX_EXPORT FObjectTree {
 public:
    /** Shows the objects in the tree. */
    static void highlight(const QList<FExprBase>& objects) { FUserInterface::instance()->highlight(objects); }
};
