#pragma once

#include "host/core/FExport.h"
#include "host/core/FManaged.h"
#include "host/design/FDesign.h"

/** The results of a design, which are files in a folder. The history doesn't record them. */
class MERIX_EXPORT FResults : public FClass<FResults, FManaged> {
 public:
    static FClassData mClass;

    explicit FResults(const QString& name = QString(), const FExpr<FDesign>& variant = {})
        : FClass(name), mVariant(variant) {}

    using FManaged::init;
    /** Clears the path, so that a new object reads nothing until it gets one. Called after registration. */
    void init() { mResultPath.clear(); }

    /** The design; empty for the current one. */
    const FExpr<FDesign>& getVariant() const { return mVariant; }
    /** Folder of the files, with a slash at its end. If it is empty, nothing is read. */
    virtual QString getResultPath() const { return mResultPath; }
    void setResultPath(const QString& path) { mResultPath = path; }

 protected:
    void init(const FResults* other);

 private:
    FExpr<FDesign> mVariant;
    QString mResultPath;
};
