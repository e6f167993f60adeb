#pragma once

#include "host/core/FExport.h"
#include "host/core/FExpr.h"

#include <QHash>
#include <QString>

/**
 * Brings files of known kinds into objects: "text" gives an FString of the content, "table" an FTableData of its
 * numbers. Numbers are split at white space; a line without any gives no row, but names the columns if it is the first.
 * What isn't a number is NaN.
 */
class MERIX_EXPORT FLodmConfigurationParser {
 public:
    using Objects = QHash<QString, FExpr<FObject>>;

    /** @param folder  where relative paths start; empty for the current folder */
    explicit FLodmConfigurationParser(const QString& folder) : mFolder(folder) {}

    /**
     * Replaces the objects by the one that a file gives, under `name`. A kind that isn't known and a file that can't be
     * read are reported in the log and give no object. True in either case: a missing file is no reason to drop what
     * refers to it.
     */
    bool doImport(const QString& type, const QString& path, const QString& name);
    const Objects& getObjects() const { return mObjects; }

 private:
    QString mFolder;
    Objects mObjects;
};
