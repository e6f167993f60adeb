#pragma once

#include "host/design/FGeometryFile.h"

/** A surface of triangles (stl). */
class MERIX_EXPORT FTriangles : public FClass<FTriangles, FGeometryFile> {
 public:
    static FClassData mClass;

    static FTriangles* create(const QString& name, const QString& fileName);

 protected:
    explicit FTriangles(const QString& name = QString()) : FClass(name) {}

 private:
    friend class FClass<FTriangles, FGeometryFile>;
};
