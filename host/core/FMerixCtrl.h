#pragma once

#include "host/core/FExport.h"

#include <QString>

/** State of the program as a whole. */
class MERIX_EXPORT FMerixCtrl {
 public:
    static FMerixCtrl* instance();

    /** True while a project is read: side effects of setters are silent then. */
    bool isLoadingProject() const { return mLoading > 0; }
    /** Title of the windows and questions of the program. */
    static QString getApplicationTitle() { return QStringLiteral("merix"); }
    /** Path of the project's file; empty for one that was never saved. */
    const QString& getProjectFile() const { return mProjectFile; }
    void setProjectFile(const QString& path) { mProjectFile = path; }

 private:
    friend class FProjectLoading;

    int mLoading = 0;
    QString mProjectFile;
};

/** A project is being read for the life of the object. */
class MERIX_EXPORT FProjectLoading {
 public:
    FProjectLoading() { ++FMerixCtrl::instance()->mLoading; }
    ~FProjectLoading() { --FMerixCtrl::instance()->mLoading; }
    FProjectLoading(const FProjectLoading&) = delete;
    FProjectLoading& operator=(const FProjectLoading&) = delete;
};
