#pragma once

#include "host/core/FExport.h"
#include "host/core/FExpr.h"

#include <QString>

class FDesign;
class FExternComputation;

/**
 * The folders of the program. Runs have theirs at <results root>/<design>/<computation>; what a run reads and writes
 * lies in the same one. The root is "<project>.results" beside the project's file. A project without a file has a
 * temporary folder instead, which stays after the end of the program; its path is logged when it is made.
 *
 * An empty design stands for the current one, which is called "baseline". An empty computation stands for the one whose
 * run the steps at work belong to (FRunScope). Paths are absolute; nothing but the temporary folder is made here.
 */
class MERIX_EXPORT FPathManager {
 public:
    static FPathManager* instance();

    /** Folder of a design, without a slash at its end. */
    QString getDesignDir(const FExpr<FDesign>& design);
    /** Folder of a computation's results, or of all of a design for an empty computation. No slash at its end. */
    QString getResultsDir(const FExpr<FExternComputation>& computation, const FExpr<FDesign>& design);
    /** Folder of a computation's input files, with a slash at its end; the design's if there is no computation. */
    QString getInputDir(const FExpr<FExternComputation>& computation, const FExpr<FDesign>& design);
    /** Folder of a computation's output files, with a slash at its end. It is the one of the input files. */
    QString getResultPath(const FExpr<FExternComputation>& computation, const FExpr<FDesign>& design);
    /** Where the run before the last one is kept, without a slash at its end. */
    QString getEarlierDir(const QString& computation, const FExpr<FDesign>& design);
    /** Folder of the run whose steps are at work, with a slash at its end; empty if there is none. */
    const QString& getRunFolder() const { return mRunFolder; }
    /** Folder of the samples that come with the program; the user's own if there is none. */
    QString getSamplesDir() const;

 private:
    friend class FRunScope;

    QString resultsRoot();

    QString mTemporaryRoot;
    QString mRunFolder;
};

/** The steps at work belong to the run in that folder, for the life of the object. */
class MERIX_EXPORT FRunScope {
 public:
    explicit FRunScope(const QString& folder);
    ~FRunScope();
    FRunScope(const FRunScope&) = delete;
    FRunScope& operator=(const FRunScope&) = delete;

 private:
    QString mBefore;
};
