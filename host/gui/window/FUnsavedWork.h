#pragma once

#include "host/core/FExport.h"

#include <QObject>

/** Whether the project differs from its file. Undoing all changes since the last save makes them equal again. */
class MERIX_EXPORT FUnsavedWork : public QObject {
    Q_OBJECT

 public:
    FUnsavedWork();

    bool isThere() const { return mPosition != mSavedPosition; }
    /** The project differs from its file although no step was done, as after a recovery. */
    void assume();

 signals:
    void changed();

 private:
    static constexpr int nowhere = -1;

    void moved(int steps);
    void done();
    void joined();
    void saved();

    int mPosition = 1 << 30;       //!< grows with each step; starts so high that undo never leads to `nowhere`
    int mSavedPosition = 1 << 30;  //!< `nowhere` if neither undo nor redo can get there
};
