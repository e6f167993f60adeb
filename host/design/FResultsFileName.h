#pragma once

#include "host/core/FExport.h"
#include "host/design/FFileReference.h"

/** What kind of file a result file is. */
enum class ResultsFileType : unsigned int {
    Any = 0,
    Table = 1,
    Image = 2,
    Text = 3,  //!< plain text
    Mesh = 4,
};

/** A file that a run leaves in the run directory. */
class MERIX_EXPORT FResultsFileName : public FClass<FResultsFileName, FFileReference> {
 public:
    static FClassData mClass;

    explicit FResultsFileName(const FExprBase& fileName = {}, ResultsFileType type = ResultsFileType::Any)
        : FClass(fileName), mType(type) {}
    FResultsFileName(const FResultsFileName& other) : FResultsFileName(other.getFileName(), other.mType) {}
    FResultsFileName& operator=(const FResultsFileName&) = delete;
    FObject* clone() const override { return new FResultsFileName(*this); }

    ResultsFileType getType() const { return mType; }
    void setType(ResultsFileType type);

    QString toExpressionString() const override;

 private:
    static std::vector<std::unique_ptr<FStateField>> fields();

    ResultsFileType mType;
};
