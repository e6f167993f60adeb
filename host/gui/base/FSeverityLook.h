#pragma once

#include "host/core/FExport.h"
#include "host/core/FLogMsg.h"
#include "host/run/FSetUpProblem.h"

#include <QIcon>
#include <QString>
#include <QVariant>

/** How windows show how serious a message or a problem is. */
struct MERIX_EXPORT FSeverityLook {
    static FSeverityLook of(FLogMsg::Kind kind);
    static FSeverityLook of(FSetUpProblem::Severity severity);
    static QIcon errorIcon() { return of(FLogMsg::Kind::Error).icon; }
    static QIcon warningIcon() { return of(FLogMsg::Kind::Warning).icon; }

    QString word;
    QIcon icon;
    QVariant color;  //!< of the word; none for that of other texts
};
