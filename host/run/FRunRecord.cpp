#include "host/run/FRunRecord.h"

QString FRunRecord::stateName() const {
    switch (state) {
        case State::Ready:
            return QStringLiteral("ready");
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
            break;
    }
    return QStringLiteral("timed out");
}

QString FRunRecord::failureText() const {
    if (cause == Cause::None) {
        return {};
    }
    QString text = message;
    if (!lastLines.isEmpty()) {
        QString lines = lastLines;
        lines.replace(QLatin1Char('\n'), QStringLiteral("\n    "));
        text += QStringLiteral("\nThe last lines of %1:\n    ").arg(lastLinesFile) + lines;
    }
    return text + QStringLiteral("\nFolder of the run: ") + folder;
}
