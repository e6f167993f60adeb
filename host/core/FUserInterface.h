#pragma once

#include "host/core/FExport.h"
#include "host/core/FExprBase.h"

#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

class FManaged;
class QObject;

/**
 * The program's dialogs and views, as far as code without windows needs them. Windows replace the one object. Without
 * windows, questions are logged and answered with their default.
 */
class MERIX_EXPORT FUserInterface {
 public:
    /** What can be held back while much is changed. */
    enum class What {
        Cursor,      //!< the pointer shows that the program is busy
        Editors,     //!< editors of objects don't refresh
        ObjectTree,  //!< the tree of objects doesn't refresh
    };

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
    /** The same for any number of files. */
    virtual QStringList askOpenFiles(const QString& caption, const QString& startPath);
    /** The same for a file to save. The dialog itself asks before a file is overwritten. */
    virtual QString askSaveFile(const QString& caption, const QString& startPath, const QString& filter);
    /** Asks for a folder, starting at a path; the answer is empty if there is none. */
    virtual QString askFolder(const QString& caption, const QString& startPath);
    /** Puts text that was typed into editors into the model, as a step of its own. */
    virtual void commitEdits() {}
    /** Whether a run may start that the user asks for. If not, the user has been told why. */
    virtual bool mayRun() { return true; }
    /** Shows texts to read, by name. Without windows, logs the name and length of each. */
    virtual void showTexts(const QString& title, const QMap<QString, QString>& texts);
    /** The widget in which the user edits an object; null without windows. The caller doesn't own it. */
    virtual QObject* getObjectEditor(const FExprBase& object) {
        Q_UNUSED(object)
        return nullptr;
    }
    /** Shows the page of an object that has one, in front of others; nothing without windows. */
    virtual void showPage(FManaged* object) { Q_UNUSED(object) }
    /** A dialog that blocks the other windows opens, or has closed. */
    virtual void setModalDialog(bool open) { Q_UNUSED(open) }
    virtual void highlight(const QList<FExprBase>& objects) { Q_UNUSED(objects) }
    /** Shows the model as of a design; null shows the base design. */
    virtual void displayVariant(FManaged* design) { Q_UNUSED(design) }
    /** Height of the screen in pixels; 0 if there is none. */
    virtual int getScreenHeight() const { return 0; }
    /** Puts a text into the clipboard; without windows there is none. */
    virtual void setClipboardText(const QString& text) { Q_UNUSED(text) }
    /** Rebuilds the fields of the object editor: those of the selected objects, or those of all objects. */
    virtual void reinitializeEditor(bool all) { Q_UNUSED(all) }
    /** Holds something back, or releases it. Only FHold calls it, once for any number of nested holds. */
    virtual void hold(What what, bool isHeld) {
        Q_UNUSED(what)
        Q_UNUSED(isHeld)
    }
};
