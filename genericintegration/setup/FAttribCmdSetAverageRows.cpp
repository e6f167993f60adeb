#include "genericintegration/setup/FAttribCmdSetAverageRows.h"

#include "genericintegration/templates/FGenIntResultsFile.h"

FClassData FAttribCmdSetAverageRows::mClass("FAttribCmdSetAverageRows", &FAttribCmd::mClass);

namespace {

/** Numbers in scripts are integers at best, so that a whole one counts; an expression stays one. */
FExpr<FUnsigned> rowsOf(const FExprBase& argument) {
    const FExpr<FUnsigned> rows(argument);
    std::any number;
    const bool isWhole = !rows && FCmdTypeOf<unsigned int>::type().convert(argument, number);
    return isWhole ? FExpr<FUnsigned>(new FUnsigned(std::any_cast<unsigned int>(number))) : rows;
}

}  // namespace

FExprBase FAttribCmdSetAverageRows::execute() const {
    const FExprBase argument = getArguments().empty() ? FExprBase() : getArguments().front();
    const FExpr<FUnsigned> rows = rowsOf(argument);
    if (mpEditor && (rows || cmdtype::isScriptNull(argument))) {
        mpEditor->averageChanged(rows);
    }
    return {};
}

void FAttribCmdSetAverageRows::getAttrValue(FExprBase& value) const {
    const FExpr<FGenIntResultsFile> file = mpEditor ? mpEditor->getResultsFile() : nullptr;
    value = file ? FExprBase(file->getCurNumAverageRows()) : FExprBase(new FUnsigned(0));
}
