#pragma once

#include "host/core/FExport.h"
#include "host/design/FConfiguration.h"
#include "host/design/FResultsFileName.h"

/** A configuration whose entries can name files of a run. */
class MERIX_EXPORT FConfigurationCustomBase : public FClass<FConfigurationCustomBase, FConfiguration> {
 public:
    static FClassData mClass;

    explicit FConfigurationCustomBase(const QString& name = QString()) : FClass(name) {}

    /** The values of the entries that name output files of a run. */
    QList<FExpr<FResultsFileName>> getResultsFileNames() const;
    /**
     * Copies the input files that entries name into a folder, each in one step. A relative name starts at the folder of
     * the project's file, or at the current folder if the project has no file. Stops, with false and a message, at the
     * first file that has no name, can't be read, would be outside the folder, or would replace another one.
     */
    bool copyInputFiles(const QString& folder) const;
    /**
     * Writes what the entries export into the folder of the run in progress (see FGeometryContent). Stops, with false
     * and a message, at the first one that can't be written.
     */
    bool doExports() const;

 protected:
    using FConfiguration::init;

 private:
    /** Whether no two entries write the same file; tells if they do. */
    bool areFilesApart() const;
};
