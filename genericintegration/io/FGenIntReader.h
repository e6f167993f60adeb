#pragma once

#include "host/core/FClass.h"
#include "host/core/FExpr.h"
#include "host/core/FObjectList.h"

#include <QHash>
#include <QList>
#include <QRegExp>
#include <QString>

#include <memory>
#include <optional>

class QFile;
class FGenIntResultsFile;
class FGenIntResultsFileValue;
class FResultText;
class FResultsGeneric;
class FTableData;

/**
 * Reads the numbers of an output file: finds each value that a result template describes and fills a table with one row
 * for each. There is one reader; between calls it keeps only the objects of the last file import.
 */
class FGenIntReader : public FClass<FGenIntReader, FObject> {
 public:
    static FClassData mClass;
    static FGenIntReader* instance();

    /**
     * Fills the table. Its one column holds the numbers, NaN where none was found, under the names of the values. An
     * empty directory means the template's own sample text. A file that can't be read or an empty text is reported in
     * the log and leaves the table unchanged.
     */
    virtual void parseFile(const FExpr<FGenIntResultsFile>& file, FTableData* table, const QString& directory);
    /** Adds a table named after the template's file to the results and fills it. Does nothing without a template. */
    virtual void readResults(const FExpr<FGenIntResultsFile>& file, const FExpr<FResultsGeneric>& results,
                             const QString& directory);
    /** Puts values into the order of the table; other elements are removed. An empty text changes nothing. */
    virtual void sortValues(std::vector<FExpr<FObject>>& values, const QString& text);
    /**
     * Finds a column of one line of text. With findNumbers, the pattern of a number is loaded into the separator, and
     * column n is the number after n others; otherwise it is the text between the n-th separator and the next one or
     * the end of the line. If `line` is 0, the search starts after the anchor, if one is given.
     *
     * Sets start and length of the column, in UTF-16 units. Returns the length, or -1 if the line has no such column:
     * then the length is 0, and the start is -1 if there were fewer than n separators or numbers.
     */
    virtual int findValue(int& start, int& length, QRegExp& separator, int line, const QString& anchor,
                          const QString& text, int column, bool findNumbers);
    /**
     * Index of the value's anchor in the text: the first or last place, by its occurrence, in any case. -1 if the value
     * has no anchor or the text doesn't contain it.
     */
    int getAnchorPosition(const FGenIntResultsFileValue& value, const QString& text) const;

    /** The objects of the last file import, by name. Each `parseFile` discards them. */
    const QHash<QString, FExpr<FObject>>& getImportedObjects() const { return mImportedObjects; }
    /** The tables of zones that all file imports of the last `parseFile` created. */
    const QList<FExpr<FTableData>>& getImportedZones() const { return mImportedZones; }

 private:
    std::optional<FResultText> readText(const FGenIntResultsFile& file, const QString& directory) const;
    std::unique_ptr<QFile> openFile(const FGenIntResultsFile& file, const QString& directory) const;
    void importFile(const FGenIntResultsFileValue& value, const QString& directory, const QString& name);

    QHash<QString, FExpr<FObject>> mImportedObjects;
    QList<FExpr<FTableData>> mImportedZones;
};
