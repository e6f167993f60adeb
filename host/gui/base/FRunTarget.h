#pragma once

#include "host/core/FExport.h"
#include "host/core/FExpr.h"
#include "host/core/FQueuedCall.h"

#include <QObject>

class FExternComputation;

/**
 * The computation that Run and Stop act on: the selected one or the one that uses what is selected; else the last one;
 * else the first of the project.
 */
class MERIX_EXPORT FRunTarget : public QObject {
    Q_OBJECT

 public:
    FRunTarget();

    /** Null if the project has no computation. */
    FExternComputation* get() const;
    /** True while any computation runs. */
    static bool isAnyRunning();

 signals:
    /** Another computation is the target, or its name or the state of its run has changed. */
    void changed();

 private:
    void followSelection();
    void modelChanged(const FObject* object);

    FExpr<FExternComputation> mComputation;
    FQueuedCall mChanged{[this] { emit changed(); }};
};
