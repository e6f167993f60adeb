#include "host/design/FResultsFileName.h"

#include "host/design/FEntryValue.h"
#include "host/script/FCmdTable.h"

namespace {

FExpr<FResultsFileName> makeName(const FKeptExpression& fileName, const FKeptExpression& type) {
    const auto* number = dynamic_cast<const FDouble*>(valueObject(type.expression));
    const auto kind = static_cast<ResultsFileType>(number ? number->toInt() : 0);
    return FExpr<FResultsFileName>(new FResultsFileName(fileName.orEmpty(), kind));
}

void commands(FCmdTable& table) {
    table.global("resultsFileName", &makeName, {"fileName", "type=0"}).query();
}

}  // namespace

FClassData FResultsFileName::mClass("FResultsFileName", &FFileReference::mClass, &commands, &FResultsFileName::fields);

std::vector<std::unique_ptr<FStateField>> FResultsFileName::fields() {
    return FStateFields<FResultsFileName>().member(&FResultsFileName::mType).take();
}

void FResultsFileName::setType(ResultsFileType type) {
    entryValueChanges(*this);
    mType = type;
    setOutOfDate(true);
}

QString FResultsFileName::toExpressionString() const {
    const QString type = mType == ResultsFileType::Any
                             ? QString()
                             : QLatin1Char(',') + QString::number(static_cast<unsigned int>(mType));
    return QStringLiteral("resultsFileName(") + getFileName().toHistoryString() + type + QLatin1Char(')');
}
