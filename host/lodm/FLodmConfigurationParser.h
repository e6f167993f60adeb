#pragma once

#include "host/core/FExport.h"
#include "host/core/FExpr.h"

#include <QHash>
#include <QList>
#include <QString>

class FTableData;

/**
 * Reads files of known kinds into objects:
 * - "text" gives an FString of the content.
 * - "table" gives an FTableData of its numbers. Words are separated by white space, and one that isn't a number becomes
 *   NaN. A line without a number gives no row, but if it is the first line, its words name the columns.
 * - "tecplot" gives an FTableData for each zone of a file in Tecplot's ASCII form, see FTecplotText. Its name is that
 * of the import, "|", and the title of the zone, or its number from 1. Of equal titles the later ones get a suffix.
 */
class MERIX_EXPORT FLodmConfigurationParser {
 public:
    using Objects = QHash<QString, FExpr<FObject>>;

    /** @param folder  where relative paths start; empty for the current folder */
    explicit FLodmConfigurationParser(const QString& folder) : mFolder(folder) {}

    /**
     * Replaces the objects by those that are read from a file, under `name` or, for zones, the names of their tables.
     * An unknown kind or an unreadable file is logged and gives no object. Always returns true: a missing file is no
     * reason to drop what refers to it.
     */
    bool doImport(const QString& type, const QString& path, const QString& name);
    static bool knowsType(const QString& type);
    /** "known are …", for a message. */
    static QString knownTypes();
    const Objects& getObjects() const { return mObjects; }
    /** The tables of zones, in the order of the file. */
    const QList<FExpr<FTableData>>& getZones() const { return mZones; }

 private:
    /** Makes the objects of a text. Returns why it can't; empty if it can. */
    using Make = QString (FLodmConfigurationParser::*)(const QString& text, const QString& name);

    static Make makerOf(const QString& type);
    QString makeText(const QString& text, const QString& name);
    QString makeTable(const QString& text, const QString& name);
    QString makeZones(const QString& text, const QString& name);

    QString mFolder;
    Objects mObjects;
    QList<FExpr<FTableData>> mZones;
};
