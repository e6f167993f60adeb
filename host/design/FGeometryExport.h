#pragma once

#include "host/core/FExport.h"
#include "host/core/FObjectList.h"
#include "host/core/FStateField.h"

/** Objects of the model that are written into the run directory before a run. */
class MERIX_EXPORT FGeometryExport : public FClass<FGeometryExport, FObject> {
 public:
    static FClassData mClass;

    enum class Kind {
        Geometry,  //!< a list of objects
        Feature,   //!< what a feature definition makes
        Import,    //!< what an import has brought
    };

    FGeometryExport() = default;
    FGeometryExport(const QString& fileName, Kind kind);
    FGeometryExport(const FGeometryExport& other);
    FGeometryExport& operator=(const FGeometryExport&) = delete;
    FObject* clone() const override { return new FGeometryExport(*this); }

    /** Name of the written file in the run directory. */
    const QString& getFileName() const { return mFileName; }
    void setFileName(const QString& fileName);
    Kind getKind() const { return mKind; }
    void setKind(Kind kind);

    /** As `addGeometryObjects`, in place of the present objects. */
    bool setGeometryObjects(const FExpr<FObjectList>& objects);
    /**
     * Adds those that aren't among the objects yet. False, with a message, if the export would depend on itself with
     * one of them; that one is left out.
     */
    bool addGeometryObjects(const FExpr<FObjectList>& objects);
    /** The feature definition or import; empty for a list of objects. */
    const FExpr<FObject>& getSourceObject() const { return mSource; }
    /** Refused, with a message and false, if the export would depend on itself. */
    bool setFeatureDefinition(const FExpr<FObject>& feature);

    /** What is written, whatever the kind. */
    QList<FExpr<FObject>> getExportedObjects() const;

    QString toString() const override { return mFileName; }
    QString toExpressionString() const override;

 private:
    static std::vector<std::unique_ptr<FStateField>> fields();
    bool refuse(const FExprBase& object) const;

    QString mFileName;
    Kind mKind = Kind::Geometry;
    QList<FExpr<FObject>> mObjects;
    FExpr<FObject> mSource;
};
