#pragma once

#include "host/core/FExpr.h"
#include "host/run/FComputationChain.h"
#include "host/run/FRunRecord.h"

#include <QObject>

#include <memory>

/**
 * A run of a computation that first brings the computations up to date whose results it uses: runs those that have no
 * successful run with the present set-up, one after the other, suppliers first. If one of them doesn't succeed, those
 * that use its results aren't run, and their records say so. During that time the computation can't be run otherwise.
 */
class FChainRun : public QObject {
    Q_OBJECT

 public:
    /** Starts, and waits for the end if requested. True if the runs succeeded, or else were started. */
    static bool run(FExternComputation& target, bool wait);
    /** Requests the end of the run in progress; no other one is started. */
    void cancel();

 signals:
    /** Emitted once. */
    void ended();

 private:
    struct Member {
        FExpr<FExternComputation> computation;
        std::shared_ptr<FRunRecord> plan;  //!< what views show until it is run
    };

    explicit FChainRun(FExternComputation& target);

    void addMember(FExternComputation& computation);
    void announce() const;
    void goOn();
    /** Runs a computation; false if its end is awaited. */
    bool start(FExternComputation& member);
    void await(FExternComputation& member);
    /** After the run of a computation: gives up if it didn't succeed. */
    void take(const FExternComputation& member);
    /** Marks those that use results of a computation that didn't succeed. */
    void giveUp(const FExternComputation& failed);
    void end(bool isSuccess);
    /** Takes back what was announced; what still waits won't be run. */
    void withdraw() const;

    FExpr<FExternComputation> mTarget;
    QList<Member> mMembers;  // suppliers first, the target last
    int mNext = 0;           // the first member that still waits
    FExpr<FExternComputation> mCurrent;
    std::shared_ptr<FChainRun> mSelf;  // until the end
    bool mIsCancelled = false;
    bool mIsOver = false;
    bool mIsSuccess = false;
};
