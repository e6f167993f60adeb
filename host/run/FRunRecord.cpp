#include "host/run/FRunRecord.h"

bool FRunRecord::isSkipped() const {
    return state == State::Waiting || state == State::UpToDate || state == State::NotRun ||
           (state == State::Cancelled && !start.isValid() && setUp.isEmpty());
}

QString FRunRecord::stateName() const {
    switch (state) {
        case State::Ready:
            return QStringLiteral("ready");
        case State::Waiting:
            return QStringLiteral("waiting");
        case State::Writing:
            return QStringLiteral("writing");
        case State::Running:
            return QStringLiteral("running");
        case State::Finished:
            return QStringLiteral("finished");
        case State::Failed:
            return QStringLiteral("failed");
        case State::Cancelled:
            return QStringLiteral("cancelled");
        case State::TimedOut:
            return QStringLiteral("timed out");
        case State::UpToDate:
            return QStringLiteral("up to date");
        case State::NotRun:
            break;
    }
    return QStringLiteral("not run: upstream failed");
}

QString FRunRecord::outcomeName() const {
    return cause == Cause::Interrupted ? QStringLiteral("interrupted") : stateName();
}

void FRunRecord::addCause(Cause added, const QString& what, const QString& advice) {
    if (cause != Cause::None) {
        furtherCauses.append(what);
        return;
    }
    cause = added;
    message = message.isEmpty() ? what : what + QLatin1Char(' ') + message;
    remedy = advice;
}

QString FRunRecord::failureText() const {
    if (cause == Cause::None) {
        return {};
    }
    QStringList parts{message};
    if (!changedInput.isEmpty()) {
        parts.append(QStringLiteral("Changed since the run before: ") + changedInput);
    }
    if (!causeLines.isEmpty()) {
        parts.append(QStringLiteral("From the output of the program:\n") + causeLines);
    }
    for (const QString& further : furtherCauses) {
        parts.append(QStringLiteral("Also: ") + further);
    }
    if (!remedy.isEmpty()) {
        parts.append(remedy);
    }
    if (!isSkipped()) {
        parts.append(QStringLiteral("Folder of the run: ") + folder);
    }
    return parts.join(QLatin1Char('\n'));
}
