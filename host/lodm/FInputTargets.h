#pragma once

#include "host/core/FExport.h"

#include <QHash>
#include <QString>

class FObject;

/** The files that are written into the folder of a run before its program starts, and what writes them. */
class MERIX_EXPORT FInputTargets {
 public:
    /** The name of the file that a value brings, relative to the folder; empty for other values. */
    static QString nameOf(const FObject& value);

    /**
     * Adds a file.
     * @param writer  in words, for messages
     * @param source  the file that it is a copy of, if it is one
     * @return what writes a different file of that name already; empty if nothing does
     */
    QString add(const QString& name, const QString& writer, const QString& source = QString());
    /** Adds the file that a value brings, if it brings one. */
    QString addValue(const FObject& value, const QString& writer);
    /** What writes a file of that name; empty if nothing does. */
    QString writerOf(const QString& name) const;

 private:
    struct Writer {
        QString text;
        QString source;
    };

    QHash<QString, Writer> mWriters;  //!< by path
};
