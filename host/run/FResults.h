#pragma once

#include "host/core/FExport.h"
#include "host/core/FManaged.h"
#include "host/design/FDesign.h"

/** What came out of a design: it lies in a folder. Results aren't part of the history. */
class MERIX_EXPORT FResults : public FClass<FResults, FManaged> {
 public:
    static FClassData mClass;

    explicit FResults(const QString& name = QString(), const FExpr<FDesign>& variant = {})
        : FClass(name), mVariant(variant) {}

    using FManaged::init;
    /** A new object reads from no folder until it gets one. Called when the object was registered. */
    void init() { mResultPath.clear(); }

    /** The design; empty for the current one. */
    const FExpr<FDesign>& getVariant() const { return mVariant; }
    /** Folder of the files that are read, with a slash at its end. Empty if there is none, so that nothing is read. */
    virtual QString getResultPath() const { return mResultPath; }
    void setResultPath(const QString& path) { mResultPath = path; }

 protected:
    void init(const FResults* other);

 private:
    FExpr<FDesign> mVariant;
    QString mResultPath;
};
