#include "host/gui/fields/FScriptField.h"

#include "host/gui/fields/FScriptCompleter.h"
#include "host/gui/fields/FScriptText.h"
#include "host/script/FAttributeQuery.h"

#include <QLineEdit>

namespace {

/** A command without a row takes what is entered as it is. */
bool isExpression(const FAttribCmd& command) {
    const FCmdRow* row = command.getRow();
    return !row || (row->presentation.attrAsExpr && FAttributeQuery::keepsExpression(*row));
}

}  // namespace

FScriptField::FScriptField(const FAttribCmd& command) : FLineField(command), mIsKept(isExpression(command)) {
    if (mIsKept) {
        new FScriptCompleter(line());
    }
}

void FScriptField::showValue(const FExprBase& value, bool isCommon) {
    FLineField::showValue(value, isCommon);
    const QString given = mIsKept && isCommon ? FScriptText::evaluated(value) : QString();
    showBeside(given.isEmpty() ? QString() : QStringLiteral("= ") + given);
}

QString FScriptField::textOf(const FExprBase& value) const {
    return FScriptText::of(value);
}

FExprBase FScriptField::enteredValue(QString& fault) const {
    const FExprBase bound = FScriptText::bind(text(), fault);
    if (mIsKept || !fault.isEmpty()) {
        return bound;
    }
    const FCmdRow* row = command().getRow();
    const FExprBase value(bound.getObject());
    std::any converted;
    if (!row->arguments.front().type.convert(value, converted)) {
        fault = QStringLiteral("\"%1\" can't be read as the value of this attribute").arg(text());
    }
    return value;
}
