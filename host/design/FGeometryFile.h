#pragma once

#include "host/core/FExport.h"
#include "host/core/FScope.h"

/** Geometry that a file describes. */
class MERIX_EXPORT FGeometryFile : public FClass<FGeometryFile, FEntity> {
 public:
    static FClassData mClass;

    explicit FGeometryFile(const QString& name = QString()) : FClass(name) {}

    const QString& getFileName() const { return mFileName; }
    bool isDrawable() const override { return true; }

 protected:
    /** Brings a new object into the model. */
    void enterWith(const QString& fileName);

 private:
    static void fileCommands(FCmdTable& table);

    QString mFileName;
};
