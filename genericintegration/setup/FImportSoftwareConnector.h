#pragma once

#include "host/lodm/FImport.h"

class FScriptNames;
struct FSetUpPart;

/**
 * Imports set-ups from an exchange file, which FSetUpExport has written, as one step of the history. Side effects of
 * setters are silent as while a project is loaded. Within the file a name means the object that the file declares, also
 * if an object of the model has the same name; the new one is then renamed. Each part is read as far as possible.
 */
class FImportSoftwareConnector : public FClass<FImportSoftwareConnector, FImport> {
 public:
    static FClassData mClass;

    static FImportSoftwareConnector* create(const QString& name);
    FImport* makeImport() const override { return new FImportSoftwareConnector; }
    /** Imports what a file holds, whose name is that of the source in messages. */
    void importBytes(const QByteArray& bytes, const QString& source);

 protected:
    void doImport(QFile& file, bool flag) override;
    /**
     * Makes the objects of a part, and sets their references to each other. Reports what is missing.
     * @param names  of the parts before; those of this one join them
     */
    void importFilePart(const FSetUpPart& part, const QString& source, FScriptNames& names);

 private:
    friend class FClass<FImportSoftwareConnector, FImport>;

    explicit FImportSoftwareConnector(const QString& name = QString());
    void reportMissing(const FSetUpPart& part, const QString& source, const QString& setUp, QStringList missing);
};
