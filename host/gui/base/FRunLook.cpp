#include "host/gui/base/FRunLook.h"

#include "host/run/FExternComputation.h"

using Cause = FRunRecord::Cause;
using State = FRunRecord::State;

FRunLook FRunLook::of(State state) {
    switch (state) {
        case State::Finished:
            return {"dialog-ok-apply", FStateColor::State::Good};
        case State::UpToDate:
            return {"dialog-ok", FStateColor::State::Good};
        case State::Failed:
            return {"dialog-error", FStateColor::State::Bad};
        case State::TimedOut:
            return {"chronometer", FStateColor::State::Warning};
        case State::Cancelled:
        case State::NotRun:
            return {"dialog-cancel", FStateColor::State::Secondary};
        case State::Waiting:
            return {"player-time", FStateColor::State::Secondary};
        case State::Ready:
        case State::Writing:
        case State::Running:
            break;
    }
    return {"media-playback-start", FStateColor::State::Secondary};
}

QString FRunLook::textOf(const FRunRecord& run) {
    return run.cause == Cause::ExitCode ? QStringLiteral("failed, exit code %1").arg(run.exitCode)
           : run.cause == Cause::Signal ? QStringLiteral("failed, signal %1").arg(run.signal)
                                        : run.outcomeName();
}

std::shared_ptr<const FRunRecord> FRunLook::runOf(const FExternComputation& computation) {
    return computation.getPlannedRun() ? computation.getPlannedRun() : computation.getLastRecord();
}

QString FRunLook::textOf(const FExternComputation& computation) {
    const std::shared_ptr<const FRunRecord> run = runOf(computation);
    return textOf(run ? *run : FRunRecord());
}
