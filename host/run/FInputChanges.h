#pragma once

#include "host/core/FExport.h"

#include <QMap>
#include <QString>

/** The values that the input of a run has, compared with those of the run before: to tell runs of a loop apart. */
class MERIX_EXPORT FInputChanges {
 public:
    /** Takes the values of the next run, by the names of their entries. */
    void take(const QMap<QString, QString>& values);
    /** For the user: `length = 0.14, load = 9 and 3 more`; empty for the first run, or if nothing differs. */
    const QString& text() const { return mText; }

 private:
    QMap<QString, QString> mValues;
    QString mText;
    bool mIsFirst = true;
};
