#pragma once

#include "host/core/FExport.h"

#include <QDateTime>
#include <QHash>
#include <QStringList>

/** The files that a program writes into a folder: those that are new or changed since this object was made. */
class MERIX_EXPORT FWrittenFiles {
 public:
    /** Notes the present files. Of a folder with very many files, only some are considered. */
    explicit FWrittenFiles(const QString& folder) : mFolder(folder), mBefore(list()) {}

    /**
     * The written files, relative to the folder, that a user may have meant by this name: those with the same name in
     * another case or folder, a similar one, or the same one with another ending. The closest come first.
     */
    QStringList similarTo(const QString& file) const;

 private:
    QHash<QString, QDateTime> list() const;

    QString mFolder;
    QHash<QString, QDateTime> mBefore;
};
