#pragma once

#include <QString>

/** State of the program as a whole. */
class FMerixCtrl {
 public:
    static FMerixCtrl* instance();

    /** True while a project is read: side effects of setters are silent then. */
    bool isLoadingProject() const { return mLoading > 0; }
    /** Title of the windows and questions of the program. */
    static QString getApplicationTitle() { return QStringLiteral("merix"); }
    /** Path of the project's file; empty for one that was never saved. */
    const QString& getProjectFile() const { return mProjectFile; }
    /** Which other process has the project open, in words for a message; empty if none has. */
    const QString& getProjectHolder() const { return mProjectHolder; }
    void setProjectFile(const QString& path, const QString& holder = QString()) {
        mProjectFile = path;
        mProjectHolder = holder;
    }

 private:
    friend class FProjectLoading;

    int mLoading = 0;
    QString mProjectFile;
    QString mProjectHolder;
};

/** A project is being read for the life of the object. */
class FProjectLoading {
 public:
    FProjectLoading() { ++FMerixCtrl::instance()->mLoading; }
    ~FProjectLoading() { --FMerixCtrl::instance()->mLoading; }
    FProjectLoading(const FProjectLoading&) = delete;
    FProjectLoading& operator=(const FProjectLoading&) = delete;
};
