#pragma once

#include "host/core/FExport.h"
#include "host/run/FSetUpCheck.h"

#include <QObject>
#include <QTimer>

#include <memory>

/** What is wrong with the set-ups of all computations, for all who show it. Checked a moment after each change. */
class MERIX_EXPORT FProblemWatch : public QObject {
    Q_OBJECT

 public:
    /** The one that all use; it goes with its last user. */
    static std::shared_ptr<FProblemWatch> get();

    /** Errors first. */
    const FSetUpCheck::Problems& problems() const { return mProblems; }
    /** Those of one object, also those in its text. */
    FSetUpCheck::Problems problemsOf(const QString& object) const;
    /** Checks now. */
    void check();
    /** Time between a change and the check, in milliseconds. */
    void setDelay(int delay) { mTimer.setInterval(delay); }

 signals:
    void checked();

 private:
    FProblemWatch();

    FSetUpCheck::Problems mProblems;
    QTimer mTimer;
};
