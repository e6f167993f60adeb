#pragma once

#include "host/core/FExport.h"
#include "host/core/FUserInterface.h"

#include <QObject>

/** What the windows of the program have in common. */
class MERIX_EXPORT FViewCtrl : public QObject {
    Q_OBJECT

 public:
    static FViewCtrl* instance();

    bool hasGui() const { return FUserInterface::instance()->hasGui(); }
    /** True on a screen less than 800 pixels high; false without windows. */
    static bool hasSmallScreen();
    /** Shows the model as of a design; null shows the base design. Without windows nothing happens. */
    static void displayVariant(FManaged* design) { FUserInterface::instance()->displayVariant(design); }
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

 signals:
    /** Emitted by the windows when the user has chosen another font. */
    void applicationFontChanged();
};
