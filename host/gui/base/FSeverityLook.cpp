#include "host/gui/base/FSeverityLook.h"

#include "host/gui/base/FIcons.h"
#include "host/gui/base/FStateColor.h"

FSeverityLook FSeverityLook::of(FLogMsg::Kind kind) {
    switch (kind) {
        case FLogMsg::Kind::Error:
            return {QStringLiteral("error"), FIcons::get(QStringLiteral("dialog-error")),
                    FStateColor::of(FStateColor::State::Bad)};
        case FLogMsg::Kind::Warning:
            return {QStringLiteral("warning"), FIcons::get(QStringLiteral("dialog-warning")),
                    FStateColor::of(FStateColor::State::Warning)};
        case FLogMsg::Kind::Info:
            break;
    }
    return {QStringLiteral("note"), FIcons::get(QStringLiteral("dialog-information")), QVariant()};
}

FSeverityLook FSeverityLook::of(FSetUpProblem::Severity severity) {
    switch (severity) {
        case FSetUpProblem::Severity::Error:
            return of(FLogMsg::Kind::Error);
        case FSetUpProblem::Severity::Warning:
            return of(FLogMsg::Kind::Warning);
        case FSetUpProblem::Severity::Note:
            break;
    }
    return of(FLogMsg::Kind::Info);
}
