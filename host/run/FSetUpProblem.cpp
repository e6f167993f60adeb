#include "host/run/FSetUpProblem.h"

QString FSetUpProblem::severityName() const {
    switch (severity) {
        case Severity::Error:
            return QStringLiteral("error");
        case Severity::Warning:
            return QStringLiteral("warning");
        default:
            return QStringLiteral("note");
    }
}

FLogMsg FSetUpProblem::toMessage() const {
    const auto kind = severity == Severity::Error     ? FLogMsg::Kind::Error
                      : severity == Severity::Warning ? FLogMsg::Kind::Warning
                                                      : FLogMsg::Kind::Info;
    return {kind, object, text, remedy, FLogMsg::Stream::StandardError, place};
}

QString FSetUpProblem::key() const {
    return severityName() + QLatin1Char('\n') + object + QLatin1Char('\n') + place + QLatin1Char('\n') +
           (isOfValue ? remedy : text);
}
