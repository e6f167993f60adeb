#pragma once

#include "host/core/FExport.h"
#include "host/core/FExpr.h"
#include "host/lodm/FLodmEntry.h"
#include "host/script/FScriptNames.h"

#include <QList>

class FEntryBase;

/**
 * Makes entry definitions from their descriptions in an exchange file. A default that can't be evaluated is reported
 * with its place, and the entry has none.
 *
 * Defaults may name objects that come later in the file than the entries. Such an entry has no default until the
 * builder knows the names; then the caller builds all entries again.
 */
class MERIX_EXPORT FLodmEntryBuilder {
 public:
    /** @param source  name of the file in messages */
    explicit FLodmEntryBuilder(const QString& source = QString()) : mSource(source) {}

    /** Makes entry definitions, not yet part of a definition. */
    QList<FExpr<FEntryBase>> build(const std::vector<FLodmEntry>& nodes);
    /** Whether a default of the built entries waits for names. */
    bool isWaiting() const { return mIsWaiting; }
    /**
     * Sets the objects of the file. Names in defaults mean these, or else objects of the model.
     * @param tells  whether names that nothing has are reported
     */
    void setNames(const FScriptNames& names, bool tells = true);
    /** How many defaults couldn't be evaluated. */
    int getFaultCount() const { return mFaulty; }
    /** Reports the number of faulty defaults beyond those that were reported one by one. */
    void reportRest() const;

 private:
    FExprBase valueOf(const FLodmEntry& entry);
    FExprBase evaluate(const FLodmEntry& entry, QString& reason) const;
    void warn(const FLodmEntry& entry, const QString& reason);

    QString mSource;
    FScriptNames mNames;
    bool mHasNames = false;
    bool mTells = true;
    bool mIsWaiting = false;
    int mFaulty = 0;
};
