#pragma once

#include "host/core/FExport.h"
#include "host/core/FExpr.h"
#include "host/lodm/FLodmEntry.h"
#include "host/script/FScriptNames.h"

#include <QList>

class FEntryBase;

/**
 * Makes entry definitions from their descriptions in an exchange file. A default that can't be taken over is reported
 * with its place, and the entry has none.
 *
 * Defaults may name objects that come later in the file than the entries. Such an entry has no default until the
 * builder knows the names; then all entries are to be built once more.
 */
class MERIX_EXPORT FLodmEntryBuilder {
 public:
    /** @param source  the name that messages give the file */
    explicit FLodmEntryBuilder(const QString& source = QString()) : mSource(source) {}

    /** The entry definitions, which stand nowhere yet. */
    QList<FExpr<FEntryBase>> build(const std::vector<FLodmEntry>& nodes);
    /** Whether a default of what was built waits for names. */
    bool isWaiting() const { return mIsWaiting; }
    /** The objects of the file are there; names in defaults mean these, or else those of the model. */
    void setNames(const FScriptNames& names);
    /** Tells how many defaults there were beyond those that were reported one by one. */
    void reportRest() const;

 private:
    FExprBase valueOf(const FLodmEntry& entry);
    FExprBase evaluate(const FLodmEntry& entry, QString& reason) const;
    void warn(const FLodmEntry& entry, const QString& reason);

    QString mSource;
    FScriptNames mNames;
    bool mHasNames = false;
    bool mIsWaiting = false;
    int mFaulty = 0;
};
