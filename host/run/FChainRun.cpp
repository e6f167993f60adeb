#include "host/run/FChainRun.h"

#include "host/run/FExternComputation.h"

#include <QCoreApplication>
#include <QEventLoop>

#include <utility>

using Cause = FRunRecord::Cause;
using State = FRunRecord::State;

bool FChainRun::run(FExternComputation& target, bool wait) {
    const std::shared_ptr<FChainRun> chain(new FChainRun(target));
    chain->mSelf = chain;
    target.mChain = chain;
    QEventLoop loop;
    connect(chain.get(), &FChainRun::ended, &loop, &QEventLoop::quit);
    chain->announce();
    chain->goOn();
    if (wait && !chain->mIsOver) {
        loop.exec();
    }
    return chain->mIsOver ? chain->mIsSuccess : !wait;
}

FChainRun::FChainRun(FExternComputation& target) : mTarget(&target) {
    for (FExternComputation* supplier : FComputationChain::suppliersOf(target)) {
        addMember(*supplier);
    }
    addMember(target);
}

void FChainRun::addMember(FExternComputation& computation) {
    auto plan = std::make_shared<FRunRecord>();
    plan->state = State::Waiting;
    plan->computation = computation.getName();
    plan->message = QStringLiteral("It comes after the computations whose results it uses.");
    mMembers.append({FExpr<FExternComputation>(&computation), plan});
}

void FChainRun::announce() const {
    if (mMembers.size() < 2) {
        return;
    }
    for (const Member& member : mMembers) {
        if (member.computation->canRun() || member.computation == mTarget) {
            member.computation->setPlannedRun(member.plan);
        }
    }
}

void FChainRun::cancel() {
    mIsCancelled = true;
    if (mCurrent) {
        mCurrent->cancel();
    }
}

void FChainRun::goOn() {
    while (!mIsOver && !mIsCancelled && mNext < mMembers.size()) {
        const Member& next = mMembers.at(mNext++);
        mCurrent = next.computation;
        FExternComputation* member = mCurrent.ptr();
        // One that has left the model is no supplier any more.
        if (!member) {
            continue;
        }
        if (member != mTarget.ptr() && member->isUpToDate()) {
            next.plan->state = State::UpToDate;
            next.plan->message =
                QStringLiteral("It isn't run again: its last run succeeded, and its set-up is the same.");
            member->setPlannedRun(next.plan);
            continue;
        }
        if (!start(*member)) {
            return;
        }
        take(*member);
    }
    if (FExternComputation* target = mTarget.ptr(); !mIsOver && mIsCancelled && target) {
        target->skipRun(Cause::Cancelled, QStringLiteral("The run was cancelled before it started."));
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
    const FComputationChain::Computations clients = FComputationChain::clientsOf(failed);
    for (; mNext < mMembers.size(); ++mNext) {
        FExternComputation* member = mMembers.at(mNext).computation.ptr();
        if (member && clients.contains(member)) {
            member->skipRun(Cause::UpstreamFailed,
                            QStringLiteral("It was not run: it uses results of \"%1\", whose run ended as: %2.")
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
    withdraw();
    emit ended();
    // This object may be the receiver of the signal being handled.
    QMetaObject::invokeMethod(
        QCoreApplication::instance(), [self = std::move(mSelf)] {}, Qt::QueuedConnection);
}

void FChainRun::withdraw() const {
    for (const Member& member : mMembers) {
        FExternComputation* computation = member.computation.ptr();
        if (member.plan->state == State::Waiting) {
            member.plan->state = State::Cancelled;
            member.plan->message = QStringLiteral("It was not run: the chain that it belongs to ended before.");
        }
        if (computation && computation->getPlannedRun() == member.plan) {
            computation->setPlannedRun(nullptr);
        }
    }
}
