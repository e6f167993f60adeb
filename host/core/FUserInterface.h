#pragma once

#include "host/core/FExport.h"
#include "host/core/FExprBase.h"

#include <QList>
#include <QString>
#include <QStringList>

/**
 * What the program asks of a person. The one object is replaced when there are windows; without them it answers with
 * the defaults and prints what it was asked.
 */
class MERIX_EXPORT FUserInterface {
 public:
    static FUserInterface* instance();
    /** Returns the object before; null brings back the one without windows. */
    static FUserInterface* replace(FUserInterface* userInterface);

    virtual ~FUserInterface() = default;

    virtual bool hasGui() const { return false; }
    /** Asks, and returns the number of the button, the first being 0. */
    virtual int ask(const QString& title, const QString& text, const QStringList& buttons, int defaultButton);
    virtual void tell(const QString& title, const QString& text);
    /** Asks for a file to open, starting at a path; the answer is empty if there is none. */
    virtual QString askOpenFile(const QString& caption, const QString& startPath, const QString& filter);
    /** Takes text over that was typed into editors and isn't in the model yet, as a step of its own. */
    virtual void commitEdits() {}
    /** A dialog that blocks the other windows opens, or has closed. */
    virtual void setModalDialog(bool open) { Q_UNUSED(open) }
    virtual void highlight(const QList<FExprBase>& objects) { Q_UNUSED(objects) }
};
