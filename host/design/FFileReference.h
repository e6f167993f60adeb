#pragma once

#include "host/core/FBasicType.h"
#include "host/core/FExport.h"
#include "host/core/FStateField.h"

/** A value that names a file. The name is an expression and is followed. */
class MERIX_EXPORT FFileReference : public FClass<FFileReference, FBasicType> {
 public:
    static FClassData mClass;

    explicit FFileReference(const FExprBase& fileName = {}) { setFileName(fileName); }
    FFileReference(const FFileReference& other) : FFileReference(other.mFileName) {}
    FFileReference& operator=(const FFileReference&) = delete;

    const FExprBase& getFileName() const { return mFileName; }
    /** Refused, with a message and false, if the value would depend on itself. */
    bool setFileName(const FExprBase& fileName) { return set(mFileName, fileName); }
    /** The evaluated name; empty if there is none. */
    QString getFileNameText() const { return textOf(mFileName); }

    /** The text of the expression; for a plain name the name itself. */
    QString toString() const override { return mFileName.toString(); }
    /** The name under which the file lies in the run directory. */
    QString toPlainString() const override { return getFileNameText(); }

 protected:
    std::vector<FExprBase> getOperands() const override { return {mFileName}; }
    /** Sets a handle that this object depends on. Refused, with a message and false, where it would depend on itself.
     */
    bool set(FExprBase& member, const FExprBase& value);
    static QString textOf(const FExprBase& expression);

 private:
    static std::vector<std::unique_ptr<FStateField>> fields();

    FExprBase mFileName;
};
