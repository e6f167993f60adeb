#pragma once

#include "host/core/FExport.h"

#include <QElapsedTimer>
#include <QObject>
#include <QString>

class FUserStep;

/**
 * Makes one step of those that a user does while turning a spin box or typing: consecutive ones of the same kind, with
 * pauses of two seconds at most, while the same widget has the focus.
 */
class MERIX_EXPORT FStepJoiner : public QObject {
    Q_OBJECT

 public:
    FStepJoiner();

    /** To call in a step. Only steps with the same key are joined. */
    void join(FUserStep& step, const QString& key);
    /** The next step stays on its own. */
    void end();

 private:
    void done();

    QString mKey;  //!< of the last step; null if nothing may join it
    QElapsedTimer mSinceLast;
    bool mIsOpen = false;
};
