#pragma once

#include "host/core/FExport.h"

#include <QElapsedTimer>
#include <QObject>
#include <QString>
#include <QTimer>

/**
 * Saves unsaved work into `NAME.mrx.autosave` beside the project: after a change, at most every few seconds, and rarer
 * where saving takes long. The file is there only as long as there is unsaved work, or after a crash.
 */
class MERIX_EXPORT FAutosave : public QObject {
 public:
    FAutosave();

    static QString pathOf(const QString& project) { return project + QStringLiteral(".autosave"); }
    /** Whether there is unsaved work, which is something other than the project. */
    static bool hasWork(const QString& project);
    /** Whether that is of the project which is open here. */
    bool isOwnOf(const QString& project) const { return mIsOwn && mProject == project; }

    /**
     * From now on, changes are saved beside this project.
     * @param recovered  whether there are some already, which stay until the project is saved
     * @param isDamaged  whether the project holds content that couldn't be read
     */
    void start(const QString& project, bool recovered, bool isDamaged);
    /** Nothing is saved any more. What was saved goes, unless it was recovered or is to be kept. */
    void stop(bool keep);
    /** The project was saved: there is no unsaved work. */
    void saved();

 private:
    /** The model may have changed. */
    void changed();
    /** Saves inside an open step if the pause since the last save is over. */
    void saveIfDue();
    /** What was saved inside a step that failed is replaced by what the model has now. */
    void takenBack();
    /** Milliseconds until the next save is due; 0 or less if it is now. */
    qint64 wait() const;
    void saveSoon();
    void save();
    /** Writes the text, unless it is that of the project: then there is no unsaved work. Returns why it can't. */
    QString keep(const QByteArray& text);
    /** What a crash left, and nobody took, isn't overwritten. */
    void moveForeignAside();
    /** Removes a file that has only what the project has. */
    void removeIfEqual() const;

    QString mProject;  //!< empty: nothing is saved
    bool mIsOwn = false;
    bool mIsRecovered = false;
    bool mIsDamaged = false;
    bool mHasFailed = false;
    bool mHasOpenStep = false;  //!< the last save was inside a step that is still open
    qint64 mPause = 0;          //!< shortest time from one save to the next, in ms
    QElapsedTimer mSinceSave;
    QTimer mTimer;
};
