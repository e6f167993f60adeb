#pragma once

#include "host/core/FExport.h"
#include "host/core/FObject.h"

#include <QByteArray>
#include <QString>

#include <vector>

class FGeometryExport;

/**
 * What a geometry export writes. A file with the suffix "csv" has the points and the curves, a line "x,y,z" for each
 * point; one with "stl" has the triangles. Of groups and features, their entities are written.
 */
class MERIX_EXPORT FGeometryContent {
 public:
    /** The objects must outlive this one. */
    explicit FGeometryContent(const FGeometryExport& geometry);

    /** Why it can't be written, for the user; empty if nothing is known. Reads no file. */
    QString fault() const;
    /** A short text that differs for different contents. Reads only files that have changed. */
    QString digest() const;
    /** Gives the bytes of the file. Returns the reason of a failure, for the user. */
    QString read(QByteArray& bytes) const;

 private:
    void add(const FObject* object);
    bool isTriangles() const;
    QString faultOf(const FObject& object) const;

    QString mFileName;
    std::vector<const FObject*> mObjects;
};
