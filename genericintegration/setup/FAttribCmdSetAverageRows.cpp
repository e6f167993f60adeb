#include "genericintegration/setup/FAttribCmdSetAverageRows.h"

#include "genericintegration/templates/FGenIntResultsFile.h"

FClassData FAttribCmdSetAverageRows::mClass("FAttribCmdSetAverageRows", &FAttribCmd::mClass);

FExprBase FAttribCmdSetAverageRows::execute() const {
    const FExprBase argument = getArguments().empty() ? FExprBase() : getArguments().front();
    const FExpr<FUnsigned> rows(argument);
    if (rows.isEmpty() && !cmdtype::isScriptNull(argument)) {
        warnNow(getClass(), QStringLiteral("%1 isn't a number of rows").arg(argument.toHistoryString()),
                QStringLiteral("The average stays as it is"));
    } else if (mpEditor) {
        mpEditor->averageChanged(rows);
    }
    return {};
}

void FAttribCmdSetAverageRows::getAttrValue(FExprBase& value) const {
    const FExpr<FGenIntResultsFile> file = mpEditor ? mpEditor->getResultsFile() : nullptr;
    const FExpr<FUnsigned> rows = file ? file->getCurNumAverageRows() : FExpr<FUnsigned>(new FUnsigned(0));
    value = static_cast<const FExprBase&>(rows);
}
