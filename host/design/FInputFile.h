#pragma once

#include "host/core/FExport.h"
#include "host/design/FFileReference.h"

/**
 * A file that is copied into the run directory before a run. Its name can be an expression on the results of another
 * computation: so computations are linked.
 */
class MERIX_EXPORT FInputFile : public FClass<FInputFile, FFileReference> {
 public:
    static FClassData mClass;

    /** @param saveDirectory  folder in the run directory; empty for the run directory itself */
    explicit FInputFile(const FExprBase& fileName = {}, const FExprBase& saveDirectory = {});
    FInputFile(const FInputFile& other) : FInputFile(other.getFileName(), other.mSaveDirectory) {}
    FInputFile& operator=(const FInputFile&) = delete;
    FObject* clone() const override { return new FInputFile(*this); }

    const FExprBase& getSaveDirectory() const { return mSaveDirectory; }
    bool setSaveDirectory(const FExprBase& directory) { return set(mSaveDirectory, directory); }

    /** The file's name without its folders, after the folder that it is saved in. */
    QString toPlainString() const override;
    QString toExpressionString() const override;

 protected:
    std::vector<FExprBase> getOperands() const override { return {getFileName(), mSaveDirectory}; }

 private:
    static std::vector<std::unique_ptr<FStateField>> fields();

    FExprBase mSaveDirectory;
};
