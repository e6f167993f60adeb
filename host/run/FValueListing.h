#pragma once

#include "host/core/FExport.h"

#include <QByteArray>
#include <QString>

#include <vector>

class FTableData;
class QJsonArray;

/** A list of values that were read from files: for each its name, number, place, text and flags. */
class MERIX_EXPORT FValueListing {
 public:
    FValueListing() = default;
    explicit FValueListing(const FTableData& table) { add(table); }

    /** Appends the rows of a table. The table must outlive this object. */
    void add(const FTableData& table) { mTables.push_back(&table); }

    /** Aligned columns under a header line; each line ends with a line feed. */
    QString toText() const;
    /** Comma-separated fields under a header line, quoted where necessary. */
    QString toCsv() const;
    /** An object for each value, in order: name, value (null for NaN), file, line, column, text, flags, reason, state.
     */
    QJsonArray toJson() const;

 private:
    struct FRow;
    std::vector<FRow> rows() const;

    std::vector<const FTableData*> mTables;
};
