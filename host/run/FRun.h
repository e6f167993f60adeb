#pragma once

#include "host/run/FProcess.h"
#include "host/run/FRunRecord.h"
#include "host/run/FSuccessRules.h"
#include "host/run/FWrittenFiles.h"

#include <memory>
#include <optional>

/**
 * The process and the record of one run. The caller writes the input files between `startWriting` and `start`, and
 * calls `fail` if that goes wrong. The end is reported once.
 */
class FRun : public QObject {
    Q_OBJECT

 public:
    /**
     * @param setup      how the program is started; its working folder is the folder of the run
     * @param readFiles  files in the folder that results are read from: the program has to write them
     * @param further    other files in the folder that it may write, which other programs read
     * @param rules      what else counts as success
     */
    FRun(const QString& computation, const FProcessSetup& setup, const QStringList& readFiles,
         const QStringList& further, const FSuccessRules& rules);

    const FRunRecord& record() const { return *mRecord; }
    /** The same record for results to keep; it is updated during the run. */
    std::shared_ptr<const FRunRecord> sharedRecord() const { return mRecord; }

    void startWriting() { mRecord->state = FRunRecord::State::Writing; }
    /** The input is written; notes what it was made of. */
    void setSetUp(const QMap<QString, QString>& setUp) { mRecord->setUp = setUp; }
    /** Ends the run before its program was started. */
    void fail(FRunRecord::Cause cause, const QString& message);
    /** Starts the program. False if the run was cancelled before; it then ends without the program. */
    bool start();
    /** Notes which entries differ from those of the run before. */
    void noteChangedInput(const QString& entries) { mRecord->changedInput = entries; }
    /** The run, which has ended, fails if rules about its numbers are broken. Each fault is a sentence. */
    void addNumberFaults(const QStringList& faults);
    /** Requests the end of the program; one that hasn't been started yet never will be. */
    void cancel();

 signals:
    /** The run is over, and its record is complete. Emitted once. */
    void ended();

 private:
    void takeOutcome(const FProcessOutcome& outcome);
    void checkTexts();
    void checkFiles();
    /** A sentence about written files with names similar to those of missing ones; empty if there are none. */
    QString similarFiles(const QStringList& required) const;
    void keepCauseLines();
    void conclude();

    std::shared_ptr<FRunRecord> mRecord;
    QStringList mReadFiles;
    QStringList mFurtherFiles;
    FSuccessRules mRules;
    std::optional<FWrittenFiles> mWritten;
    FProcess mProcess;
    bool mIsCancelled = false;
};
