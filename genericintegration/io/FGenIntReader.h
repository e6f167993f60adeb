#pragma once

#include "genericintegration/io/FFoundValue.h"
#include "host/core/FClass.h"
#include "host/core/FExpr.h"
#include "host/core/FObjectList.h"

#include <QHash>
#include <QRegExp>
#include <QString>

class FGenIntFile;
class FGenIntResultsFile;
class FGenIntResultsFileValue;
class FResultText;
class FResultsGeneric;
class FTableData;

/**
 * The road from an output file of the external program to numbers: takes the text, finds each value that the template
 * describes, and fills a table with one row for each. There is one reader; between calls it keeps only what the last
 * file import brought.
 */
class FGenIntReader : public FClass<FGenIntReader, FObject> {
 public:
    static FClassData mClass;
    static FGenIntReader* instance();

    /** Adds a table named after the template's file and fills it. An empty template does nothing. */
    virtual void readResults(const FExpr<FGenIntResultsFile>& file, const FExpr<FResultsGeneric>& results,
                             const QString& directory);
    /**
     * Fills the table, whose one column holds the numbers, NaN where none was found, with the values' names as headers.
     * An empty directory stands for the template's own sample text. A file that can't be read, or an empty text, leaves
     * the table as it was, with a message.
     */
    virtual void parseFile(const FExpr<FGenIntResultsFile>& file, FTableData* table, const QString& directory);
    /** Brings values into the order of the table; other elements drop out. An empty text changes nothing. */
    virtual void sortValues(std::vector<FExpr<FObject>>& values, const QString& text);
    /** See the function of this name in findValue.h. */
    virtual int findValue(int& start, int& length, QRegExp& separator, int line, const QString& anchor,
                          const QString& text, int column, bool findNumbers);
    /** Index of the value's anchor in the text, by its occurrence and in any case; -1 without one or if there is none.
     */
    int getAnchorPosition(const FGenIntResultsFileValue& value, const QString& text) const;

    /** What the last file import brought, by name. Emptied at the start of each `parseFile`. */
    const QHash<QString, FExpr<FObject>>& getImportedObjects() const { return mImportedObjects; }

 private:
    bool readText(const FGenIntResultsFile& file, const QString& directory, FResultText& text) const;
    bool import(const FGenIntResultsFileValue& value, const QString& directory, const QString& found);

    QHash<QString, FExpr<FObject>> mImportedObjects;
};
