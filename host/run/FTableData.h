#pragma once

#include "host/core/FClass.h"
#include "host/core/FExport.h"
#include "host/run/FNumberOrigin.h"

#include <QHash>
#include <QStringList>
#include <QVector>

class FManaged;

/**
 * A table of numbers with a name, with headers for rows and columns that may be missing. Rows may differ in length.
 *
 * A place outside the table or an unknown header gives the quiet NaN. Of equal headers the first one counts; case
 * matters. The time of a look-up doesn't depend on the size of the table.
 */
class MERIX_EXPORT FTableData : public FClass<FTableData, FObject> {
 public:
    static FClassData mClass;
    using Rows = QVector<QVector<double>>;

    /** The cells are NaN. */
    explicit FTableData(const QString& name = QString(), unsigned int rows = 0, unsigned int columns = 0);

    const QString& getName() const { return mName; }
    QString toString() const override { return mName; }
    /** The results that the table belongs to; null if it belongs to none. */
    void setOwner(const FManaged* results);
    const FManaged* getOwner() const;
    /** An expression that finds the table through its results. */
    QString getKeptText(QString& fault) const override;

    // ---- filling; each call replaces the earlier contents ----
    void setData(const Rows& rows);
    void setAllVerticalHeaders(const QStringList& headers);
    void setAllVerticalHeadersTooltips(const QStringList& tooltips) { mRowTooltips = tooltips; }
    void setAllHorizontalHeaders(const QStringList& headers);
    /** Where each row's first number comes from. */
    void setOrigins(const QVector<FNumberOrigin>& origins) { mOrigins = origins; }

    // ---- numbers ----
    /** @param found  if given, receives whether there is such a place */
    double getElementAt(int row, int column, bool* found = nullptr) const;
    double getElementAt(const QString& rowHeader, int column) const;
    double getElementAt(int row, const QString& columnHeader) const;
    double getElementAt(const QString& rowHeader, const QString& columnHeader) const;
    /** The last number of a row, whatever its length. */
    double getLastElementOfRow(int row) const;
    /** The number of the last row in that column; NaN if that row ends before it. */
    double getLastElementOfColumn(int column) const;
    /** The mean of a column over the last rows: over all if there are fewer, NaN over none or with a NaN among them. */
    double getAverageOfLastRows(int rows, int column) const;

    // ---- size and headers ----
    int getRowCount() const { return mRows.size(); }
    /** The length of the longest row. */
    int getColumnCount() const { return mColumnCount; }
    /** The same. */
    int count() const { return getColumnCount(); }
    /** Empty if the row has no name. */
    QString getRowName(int row) const { return mRowHeaders.value(row); }
    const QStringList& getRowNames() const { return mRowHeaders; }
    /** Empty if the column has no name. */
    QString getColumnName(int column) const { return mColumnOfHeader.key(column); }
    QString getRowTooltip(int row) const { return mRowTooltips.value(row); }
    /** Number of the first row of that name; -1 if there is none. */
    int findRow(const QString& rowHeader) const { return mRowOfHeader.value(rowHeader, -1); }
    bool hasColumn(const QString& columnHeader) const { return mColumnOfHeader.contains(columnHeader); }
    /** Where the first number of a row comes from; without a place if that isn't known. */
    const FNumberOrigin& getOrigin(int row) const;
    /** The numbers of a column; NaN for a row that ends before it. */
    QVector<double> getColumn(int column) const;
    /** A line for each row: its name, if rows have names, and its numbers; before it a line of headers. */
    QString toCsv() const;

    /** The number of a row given as a double, truncated; -1, which no table has, if it doesn't fit an integer. */
    static int rowNumber(double row);

 private:
    QString mName;
    int mOwnerId = 0;  // not a handle: the results hold the table
    Rows mRows;
    int mColumnCount = 0;
    QStringList mRowHeaders;
    QStringList mRowTooltips;
    QHash<QString, int> mRowOfHeader;
    QHash<QString, int> mColumnOfHeader;
    QVector<FNumberOrigin> mOrigins;
};
