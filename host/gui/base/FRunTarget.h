#pragma once

#include "host/core/FExport.h"
#include "host/core/FExpr.h"
#include "host/core/FQueuedCall.h"

#include <QObject>

class FExternComputation;

/**
 * The computation that Run acts on: the selected one or the one that uses what is selected; else the last one;
 * else the first of the project, or the last of its chain.
 */
class MERIX_EXPORT FRunTarget : public QObject {
    Q_OBJECT

 public:
    FRunTarget();

    /** Null if the project has no computation. */
    FExternComputation* get() const;
    /** The one that Stop acts on: the target if it runs, else the first that does. Null if none runs. */
    FExternComputation* getRunning() const;
    /** True while any computation runs. */
    static bool isAnyRunning() { return firstRunning() != nullptr; }

 signals:
    /** Another computation is the target, or its name or the state of its run has changed. */
    void changed();

 private:
    static FExternComputation* firstRunning();
    void followSelection();
    void modelChanged(const FObject* object);

    FExpr<FExternComputation> mComputation;
    FQueuedCall mChanged{[this] { emit changed(); }};
};
