#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QString>
#include <QTimer>

/**
 * Saves unsaved work into `NAME.mrx.autosave` beside the project: after a change, at most every few seconds, and rarer
 * where saving takes long. The file is there only as long as there is unsaved work, or after a crash.
 */
class FAutosave : public QObject {
 public:
    FAutosave();

    static QString pathOf(const QString& project) { return project + QStringLiteral(".autosave"); }
    /** Whether a crash has left work that was never saved. */
    static bool isNewer(const QString& project);

    /**
     * From now on, changes are saved beside this project.
     * @param hasUnsaved  whether there are some already
     */
    void start(const QString& project, bool hasUnsaved);
    /** Nothing is saved any more; what was saved for the project goes. */
    void stop();
    /** What a crash left, and nobody took, isn't overwritten. */
    void moveForeignAside();
    /** The model may have changed. */
    void changed();

 private:
    void saveSoon();
    void save();

    QString mProject;  //!< empty: nothing is saved
    bool mIsOwn = false;
    bool mHasFailed = false;
    qint64 mPause = 0;  //!< shortest time from one save to the next, in ms
    QElapsedTimer mSinceSave;
    QTimer mTimer;
};
