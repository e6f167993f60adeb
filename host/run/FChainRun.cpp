#include "host/run/FChainRun.h"

#include "host/run/FExternComputation.h"

#include <QCoreApplication>
#include <QEventLoop>

#include <utility>

bool FChainRun::run(FExternComputation& target, bool wait) {
    const std::shared_ptr<FChainRun> chain(new FChainRun(target));
    chain->mSelf = chain;
    target.mChain = chain;
    QEventLoop loop;
    connect(chain.get(), &FChainRun::ended, &loop, &QEventLoop::quit);
    chain->goOn();
    if (wait && !chain->mIsOver) {
        loop.exec();
    }
    return chain->mIsOver ? chain->mIsSuccess : !wait;
}

FChainRun::FChainRun(FExternComputation& target) : mTarget(&target) {
    for (FExternComputation* supplier : FComputationChain::suppliersOf(target)) {
        mWaiting.append(FExpr<FExternComputation>(supplier));
    }
    mWaiting.append(mTarget);
}

void FChainRun::cancel() {
    mIsCancelled = true;
    if (mCurrent) {
        mCurrent->cancel();
    }
}

void FChainRun::goOn() {
    while (!mIsOver && !mIsCancelled && !mWaiting.isEmpty()) {
        mCurrent = mWaiting.takeFirst();
        FExternComputation* member = mCurrent.ptr();
        // One that has left the model is no supplier any more.
        if (!member || (member != mTarget.ptr() && member->isUpToDate())) {
            continue;
        }
        if (!start(*member)) {
            return;
        }
        take(*member);
    }
    end(!mIsCancelled && mTarget);
}

bool FChainRun::start(FExternComputation& member) {
    if (&member == mTarget.ptr()) {
        member.mChain.reset();
    }
    // One that is in progress already is the run that is needed.
    if (member.canRun()) {
        member.run(false);
    }
    if (member.canRun()) {
        return true;
    }
    await(member);
    return false;
}

void FChainRun::await(FExternComputation& member) {
    connect(&member, &FExternComputation::runChanged, this, [this] {
        FExternComputation* current = mCurrent.ptr();
        if (current && !current->canRun()) {
            return;
        }
        disconnect(sender(), nullptr, this, nullptr);
        // Not within the steps of the run that ends.
        QMetaObject::invokeMethod(
            this,
            [this] {
                if (const FExternComputation* done = mCurrent.ptr()) {
                    take(*done);
                }
                goOn();
            },
            Qt::QueuedConnection);
    });
}

void FChainRun::take(const FExternComputation& member) {
    if (!member.getLastRun().isSuccess()) {
        giveUp(member);
        end(false);
    }
}

void FChainRun::giveUp(const FExternComputation& failed) {
    for (const FExpr<FExternComputation>& member : std::exchange(mWaiting, {})) {
        if (member && member->dependsOn(&failed)) {
            member->skipRun(QStringLiteral("It was not run: it uses results of \"%1\", whose run ended as: %2.")
                                .arg(failed.getName(), failed.getLastRun().outcomeName()));
        }
    }
}

void FChainRun::end(bool isSuccess) {
    if (std::exchange(mIsOver, true)) {
        return;
    }
    mIsSuccess = isSuccess;
    if (FExternComputation* target = mTarget.ptr(); target && target->mChain == mSelf) {
        target->mChain.reset();
    }
    emit ended();
    // This object may be the receiver of the signal being handled.
    QMetaObject::invokeMethod(
        QCoreApplication::instance(), [self = std::move(mSelf)] {}, Qt::QueuedConnection);
}
