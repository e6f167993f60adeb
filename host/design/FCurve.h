#pragma once

#include "host/design/FGeometryFile.h"

/** A curve: a file of points (csv). */
class MERIX_EXPORT FCurve : public FClass<FCurve, FGeometryFile> {
 public:
    static FClassData mClass;

    static FCurve* create(const QString& name, const QString& fileName);

 protected:
    explicit FCurve(const QString& name = QString()) : FClass(name) {}

 private:
    friend class FClass<FCurve, FGeometryFile>;
};
