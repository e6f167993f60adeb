#pragma once

#include "host/core/FExport.h"

#include <QObject>
#include <QString>

/** Keeps the first warning or error that is logged while it exists, so that a field can show why a value is refused. */
class MERIX_EXPORT FMessageCatcher : public QObject {
 public:
    FMessageCatcher();

    /** What happened and what follows; empty if nothing was logged. */
    const QString& text() const { return mText; }

 private:
    QString mText;
};
