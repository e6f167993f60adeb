#pragma once

#include "host/run/FTableData.h"

struct FFoundValue;
class FGenIntResultsFileValue;

/** Collects the rows of a results table of one column: for each value its name, type, number and origin. */
class FValueRows {
 public:
    /** @param count  expected number of rows */
    explicit FValueRows(int count);

    /** Adds the row of a value for which a search found `text`. @param number  of the value in its template, from 0 */
    void append(const FGenIntResultsFileValue& value, int number, const FFoundValue& found, const QString& text);

    /** Replaces the rows, headers and origins of a table. */
    void fill(FTableData& table) const;

 private:
    QStringList mHeaders;
    QStringList mTooltips;
    FTableData::Rows mRows;
    QVector<FNumberOrigin> mOrigins;
};
