#pragma once

#include "host/core/FExport.h"
#include "host/core/FExpr.h"
#include "host/run/FRunFolderNames.h"

#include <QString>

class FDesign;
class FExternComputation;

/**
 * The folders of the program. The folder of a run is <results root>/<design>/<computation>; it contains both the input
 * and the output files. The root is "<project>.results" next to the project's file. A project without a file has a
 * temporary folder instead, which stays after the end of the program; its path is logged when it is created.
 *
 * A renamed design or computation keeps its folder until the project is saved, which renames the folder, too. If the
 * project is saved under another name, its runs stay with the old file; the log says so.
 *
 * A computation without a design has its runs in "baseline". Without a computation and a design, the paths are those of
 * the current run: the one whose steps are being executed (FRunScope), else the last one that was started for this
 * project. If there is none, they are those of "baseline". Paths are absolute; only the temporary folder is created
 * here.
 */
class MERIX_EXPORT FPathManager {
 public:
    static FPathManager* instance();

    /** Name of the folder of the runs without a design. */
    static const QString& baseline();

    /** Whether the root of the results is known, so that no call creates a temporary folder. */
    bool hasRoot() const;
    /** Folder of the project's file, or the current folder if it has no file; without a slash at its end. */
    static QString getProjectDir();
    /** Folder of a design, or of the current run's design; without a slash at its end. */
    QString getDesignDir(const FExpr<FDesign>& design);
    /**
     * Folder of a computation's results in a design. Without a computation: of all results of the design, see
     * `getDesignDir`. No slash at its end.
     */
    QString getResultsDir(const FExpr<FExternComputation>& computation, const FExpr<FDesign>& design);
    /** Folder of a computation's input files, or of the current run's; with a slash at its end. */
    QString getInputDir(const FExpr<FExternComputation>& computation, const FExpr<FDesign>& design);
    /** Folder of the output files: the same as that of the input files. */
    QString getResultPath(const FExpr<FExternComputation>& computation, const FExpr<FDesign>& design);
    /** Folder for the files of the run before the last one, without a slash at its end. */
    QString getEarlierDir(const FExpr<FExternComputation>& computation, const FExpr<FDesign>& design);
    /** A run in that folder, given with a slash at its end, is being started: it is the last one from now on. */
    void setLastRun(const QString& folder) { mLastRunFolder = folder; }
    /** The files of a run have moved; both with a slash at the end. */
    void runMoved(const QString& from, const QString& to);
    /** Folder of the examples that come with the program; the home folder if there is none. */
    QString getSamplesDir() const;

 private:
    friend class FRunScope;

    FPathManager();
    void connectToModel();
    void takeOpened();
    void takeSaved();
    void moveTemporaryRuns();
    void reportOtherRoot(const QString& earlier) const;
    QString knownRoot();
    QString resultsRoot();
    QString designDir(const FDesign* design);
    QString currentRunFolder();

    QString mTemporaryRoot;
    QString mRunFolder;  //!< of the run whose steps are being executed, with a slash at its end; empty if there is none
    QString mLastRunFolder;
    QString mProjectRoot;  //!< of the project's file when it was opened or saved; empty if it has none
    FRunFolderNames mNames;
};

/** While one exists, the steps of the run in that folder are being executed. */
class MERIX_EXPORT FRunScope {
 public:
    explicit FRunScope(const QString& folder);
    ~FRunScope();
    FRunScope(const FRunScope&) = delete;
    FRunScope& operator=(const FRunScope&) = delete;

 private:
    QString mBefore;
};
