#pragma once

#include "host/core/FExport.h"
#include "host/design/FResultsFileName.h"
#include "host/run/FComputationResults.h"
#include "host/run/FSetUpTable.h"
#include "host/run/FTableData.h"

#include <QHash>
#include <QList>
#include <QVector>

/**
 * Results as tables of numbers. The first access reads them from the files of the run. Further accesses read no file,
 * until the results become out of date.
 */
class MERIX_EXPORT FResultsGeneric : public FClass<FResultsGeneric, FComputationResults> {
 public:
    static FClassData mClass;

    FResultsGeneric() = default;
    FResultsGeneric(const QString& name, const FExpr<FDesign>& variant, const FExpr<FExternComputation>& computation)
        : FClass(name, variant, computation) {}
    FResultsGeneric(const QString& name, const FExpr<FDesign>& variant, int computationId)
        : FClass(name, variant, computationId) {}

    FComputationResults* createResults(const FExpr<FDesign>& variant,
                                       const FExpr<FExternComputation>& computation) const override;

    /**
     * Reads the files if necessary. Logs a warning, once, if they come from a run that failed, and after each reading a
     * message for each table with suspicious or missing numbers.
     */
    bool prepareResults() const override;
    void detachFromFiles() override;
    /** Empty if the files are gone. */
    QString getResultPath() const override;

    /** Has these tables, with NaN in each row, and never reads files. */
    void fillUnknown(const QVector<FSetUpTable>& tables);
    /** Appends a table of that size, filled with NaN. Tables may have equal names. */
    FTableData* addTable(const QString& name, unsigned int rows, unsigned int columns);
    /** Appends a finished table, which then belongs to these results. */
    void addTable(const FExpr<FTableData>& table);
    /** The first table of that name; an empty handle if there is none. */
    virtual FExpr<FTableData> getData(const QString& name);
    /** The table of that number, in the order of the result templates, from 0; an empty handle if there is none. */
    FExpr<FTableData> getTableAt(unsigned int number) const;
    QStringList getTableNames() const;
    /**
     * At the end of a run, which may still fail because of its numbers: reads the files and reports nothing. False if
     * nothing may be read.
     */
    bool readSilently() const;
    /** Reports on what `readSilently` has read, after the message of a failed run. */
    void reportReading() const;
    /**
     * Somebody requests numbers of one of the tables: logs a note, once for each table and set-up, if they are of an
     * earlier set-up.
     */
    void noteRequest(const FTableData& table) const;
    /** What was read so far. */
    const QList<FExpr<FTableData>>& tables() const { return mTables; }
    /** The same, but with a row of NaN for each value of a file from which nothing was read. */
    const QList<FExpr<FTableData>>& listedTables() const { return mListed; }

    /** The files that entries of the configuration name as results. */
    void setResultFiles(const QList<FExpr<FResultsFileName>>& files) { mResultFiles = files; }
    /** Kind of a file by the suffix of its name, in any case; `Any` for other suffixes. */
    static ResultsFileType getResultsFileType(const QString& name);
    /** Path of one of these files, given by its entry's path or its name; empty if there is none or the
     *  files of the run are gone. */
    QString getResultFileName(const QString& entry) const;
    /** Objects that file imports created, by the name of the value. */
    const QHash<QString, FExpr<FObject>>& getImportedObjects() const;
    /** The object that the file import of a value created; an empty handle if there is none. */
    FExpr<FObject> getImportedObject(const QString& value) const;
    /** The names of the values with such an object, in alphabetical order. */
    QStringList getImportedObjectNames() const;

 protected:
    using FComputationResults::init;
    void init(const FResultsGeneric* other);

    /** Reads the files. Overrides end with a call of the base's, which notes that the files were read. */
    virtual void readOutputFiles() const;
    /** The names of the values that a table should have, if they are known. */
    virtual QStringList valueNamesOf(int) const { return {}; }
    bool isReading() const { return mReading; }
    /** The next access reads the files again. */
    void forgetReading() const { mFilesRead = false; }
    void becameOutOfDate() const override;

    mutable QHash<QString, FExpr<FObject>> mImportedObjects;

 private:
    void readAll() const;
    void listTables();
    void warnOfFailedRun() const;
    void report() const;
    const QStringList& knownSetUpChanges() const;

    QList<FExpr<FTableData>> mTables;
    QList<FExpr<FTableData>> mListed;
    QList<FExpr<FResultsFileName>> mResultFiles;
    mutable bool mFilesRead = false;
    mutable bool mReading = false;
    mutable bool mWarned = false;
    mutable bool mIsReported = true;
    mutable QHash<int, QString> mReports;  //!< by the number of the table
    mutable quint64 mChangeCount = 0;      //!< when `mSetUpChanges` was made
    mutable QStringList mSetUpChanges;
    mutable QHash<QString, QStringList> mNotedChanges;  //!< by the name of the table
    bool mDetached = false;
};
