#pragma once

#include "host/core/FExport.h"
#include "host/core/FExprBase.h"

#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

class QObject;

/**
 * The program's dialogs and views, as far as code without windows needs them. Windows replace the one object. Without
 * windows, questions are logged and answered with their default.
 */
class MERIX_EXPORT FUserInterface {
 public:
    static FUserInterface* instance();
    /** Returns the previous object; null restores the one without windows. */
    static FUserInterface* replace(FUserInterface* userInterface);

    virtual ~FUserInterface() = default;

    virtual bool hasGui() const { return false; }
    /** Returns the number of the button, 0 for the first, or -1 if the dialog was closed without one. */
    virtual int ask(const QString& title, const QString& text, const QStringList& buttons, int defaultButton);
    /** The same for a warning, which may have no buttons to choose from. */
    virtual int warn(const QString& title, const QString& text, const QStringList& buttons, int defaultButton);
    virtual void tell(const QString& title, const QString& text);
    /** Asks for a file to open, starting at a path; the answer is empty if there is none. */
    virtual QString askOpenFile(const QString& caption, const QString& startPath, const QString& filter);
    /** Takes text over that was typed into editors and isn't in the model yet, as a step of its own. */
    virtual void commitEdits() {}
    /** The same for a file to save. The dialog itself asks before a file is overwritten. */
    virtual QString askSaveFile(const QString& caption, const QString& startPath, const QString& filter);
    /** Shows texts to read, by name. Without windows, logs the name and length of each. */
    virtual void showTexts(const QString& title, const QMap<QString, QString>& texts);
    /** The widget in which the user edits an object; null without windows. The caller doesn't own it. */
    virtual QObject* getObjectEditor(const FExprBase& object) {
        Q_UNUSED(object)
        return nullptr;
    }
    /** A dialog that blocks the other windows opens, or has closed. */
    virtual void setModalDialog(bool open) { Q_UNUSED(open) }
    virtual void highlight(const QList<FExprBase>& objects) { Q_UNUSED(objects) }
};
