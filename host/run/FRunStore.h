#pragma once

#include "host/core/FExport.h"
#include "host/run/FRunRecord.h"

#include <memory>

/**
 * The record of the last run in a folder, as a file outside that folder, so that a later process knows whose numbers
 * its files contain.
 */
class MERIX_EXPORT FRunStore {
 public:
    /** @param earlier  folder for the files of the run before, without a slash at its end; the file is beside it */
    explicit FRunStore(const QString& earlier) : mEarlier(earlier) {}

    static QString file(const QString& earlier) { return earlier + QStringLiteral(".run"); }

    /** Returns the reason of a failure, for the user. */
    QString write(const FRunRecord& record) const;
    /**
     * Null if there is no record. A run without a recorded end has failed with the cause `Interrupted`, or is in state
     * `Running` if its program is still there.
     * @param folder  where the files of the run are now, with a slash at its end
     */
    std::shared_ptr<const FRunRecord> read(const QString& folder) const;

 private:
    QString mEarlier;
};
