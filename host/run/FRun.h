#pragma once

#include "host/run/FProcess.h"
#include "host/run/FRunRecord.h"

#include <memory>

/**
 * One attempt to run a program: it keeps the record, watches the process, and tells once when all is over. What is
 * written before the program starts is the caller's business, who says with `fail` that it went wrong.
 */
class FRun : public QObject {
    Q_OBJECT

 public:
    /**
     * @param setup      what the program is started with; its folder is the run's
     * @param readFiles  files in the folder that results are read from: the program has to write them
     */
    FRun(const QString& computation, const FProcessSetup& setup, const QStringList& readFiles);

    /** Those of the files that aren't in the folder, quoted for a message; empty if all are there. */
    static QString missingFiles(const QString& folder, const QStringList& files);

    const FRunRecord& record() const { return *mRecord; }
    /** The record as results keep it: it follows the run. */
    std::shared_ptr<const FRunRecord> sharedRecord() const { return mRecord; }

    void startWriting() { mRecord->state = FRunRecord::State::Writing; }
    /** Ends the run before its program was started. */
    void fail(FRunRecord::Cause cause, const QString& message);
    /** Starts the program. */
    void start();
    /** Asks to end the program; one that hasn't been started yet never will be. */
    void cancel();

 signals:
    /** All is over and the record complete. Once for each run. */
    void ended();

 private:
    void takeOutcome(const FProcessOutcome& outcome);
    void findMissingFiles();
    void keepLastLines();
    void conclude();

    std::shared_ptr<FRunRecord> mRecord;
    QStringList mReadFiles;
    FProcess mProcess;
    bool mIsCancelled = false;
};
