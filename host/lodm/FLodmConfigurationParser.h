#pragma once

#include "host/core/FExport.h"
#include "host/core/FExpr.h"

#include <QHash>
#include <QString>

/**
 * Reads files of known kinds into objects: "text" gives an FString of the content, "table" an FTableData of its
 * numbers. Words are separated by white space, and one that isn't a number becomes NaN. A line without a number gives
 * no row, but if it is the first line, its words name the columns.
 */
class MERIX_EXPORT FLodmConfigurationParser {
 public:
    using Objects = QHash<QString, FExpr<FObject>>;

    /** @param folder  where relative paths start; empty for the current folder */
    explicit FLodmConfigurationParser(const QString& folder) : mFolder(folder) {}

    /**
     * Replaces the objects by the one that is read from a file, under `name`. An unknown kind or an unreadable file is
     * logged and gives no object. Always returns true: a missing file is no reason to drop what refers to it.
     */
    bool doImport(const QString& type, const QString& path, const QString& name);
    const Objects& getObjects() const { return mObjects; }

 private:
    QString mFolder;
    Objects mObjects;
};
