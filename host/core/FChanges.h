#pragma once

#include "host/core/FExport.h"

#include <QObject>
#include <QString>

class FLogMsg;
class FManaged;

/**
 * The one channel that reports what happens to the model, to any number of listeners. Whoever shows the model listens
 * here; nothing polls.
 *
 * Objects enter, leave and get new names at once. Other changes are reported once per object, at the end of the step,
 * undo, redo or load that made them; changes that the history doesn't record, such as those of results and of the
 * state of a run, at once. A listener must not change the model.
 */
class MERIX_EXPORT FChanges : public QObject {
    Q_OBJECT

 public:
    static FChanges* instance();

 signals:
    void objectEntered(FManaged* object);
    /** The object is out of the model; it may come back. */
    void objectLeft(FManaged* object);
    void objectRenamed(FManaged* object, const QString& oldName);
    void objectChanged(FManaged* object);

    void stepDone(const QString& label);
    /** The last step becomes a part of the one whose end is reported next. */
    void stepJoined(const QString& label);
    void stepUndone(const QString& label);
    void stepRedone(const QString& label);
    /** A step that was open failed; what it had changed is as before. */
    void stepTakenBack(const QString& label);
    /** The step can be neither undone nor redone any more. */
    void stepDropped(const QString& label);
    /** A statement inside a loop or branch has ended, and its step is still open. */
    void statementDone();

    /** No project is being loaded any more. */
    void loadingEnded();
    void projectOpened(const QString& file);
    void projectSaved(const QString& file);
    void projectClosed();

    void messageLogged(const FLogMsg& message);
};
