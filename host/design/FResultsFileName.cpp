#include "host/design/FResultsFileName.h"

#include "host/design/FEntryValue.h"
#include "host/script/FCmd.h"
#include "host/script/FCmdTable.h"

namespace {

FExpr<FResultsFileName> makeName(const FKeptExpression& fileName, unsigned int type) {
    constexpr auto last = static_cast<unsigned int>(ResultsFileType::Mesh);
    if (type > last) {
        FCmd::warnNow(FResultsFileName::mClass.getName(),
                      QStringLiteral("the type of a file is a number from 0 to %1, and not %2").arg(last).arg(type));
        return {};
    }
    return FExpr<FResultsFileName>(new FResultsFileName(fileName.orEmpty(), static_cast<ResultsFileType>(type)));
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
