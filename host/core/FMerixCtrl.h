#pragma once

#include "host/core/FExport.h"

#include <QString>

/** State of the program as a whole. */
class MERIX_EXPORT FMerixCtrl {
 public:
    static FMerixCtrl* instance();

    /** True while a project is read: side effects of setters are silent then. */
    bool isLoadingProject() const { return mLoading > 0; }
    /** True while something changes the model from outside of windows, which must not write back then. */
    bool isBusy() const { return mBusy > 0; }
    /** The MIME type of dragged objects: the id of the process and the numbers of the objects, never pointers. */
    static QString getFObjectMimeType() { return QStringLiteral("application/x-merix-objects"); }
    /** Title of the windows and questions of the program. */
    static QString getApplicationTitle() { return QStringLiteral("merix"); }
    /** Path of the project's file; empty for one that was never saved. */
    const QString& getProjectFile() const { return mProjectFile; }
    void setProjectFile(const QString& path) { mProjectFile = path; }
    /**
     * While true, nothing is written to disk: saving does nothing and succeeds, and projects are opened without a lock
     * and without keeping unsaved work.
     */
    bool isReadOnly() const { return mIsReadOnly; }
    void setReadOnly(bool readOnly) { mIsReadOnly = readOnly; }

 private:
    friend class FBusy;
    friend class FProjectLoading;

    int mLoading = 0;
    int mBusy = 0;
    bool mIsReadOnly = false;
    QString mProjectFile;
};

/** A project is being read for the life of the object. */
class MERIX_EXPORT FProjectLoading {
 public:
    FProjectLoading();
    ~FProjectLoading();
    FProjectLoading(const FProjectLoading&) = delete;
    FProjectLoading& operator=(const FProjectLoading&) = delete;
};

/** The model is being changed from outside of windows for the life of the object: a replay, a statement, a load, an
 * import. */
class MERIX_EXPORT FBusy {
 public:
    FBusy() { ++FMerixCtrl::instance()->mBusy; }
    ~FBusy() { --FMerixCtrl::instance()->mBusy; }
    FBusy(const FBusy&) = delete;
    FBusy& operator=(const FBusy&) = delete;
};
