#include "host/gui/fields/FScriptText.h"

#include "host/core/FNull.h"
#include "host/script/FBinder.h"
#include "host/script/FCmdType.h"
#include "host/script/FMemberCmd.h"
#include "host/script/FScriptParser.h"

namespace {

QString reasonOf(const FSyntaxError& error) {
    const QString message = error.message.left(1).toUpper() + error.message.mid(1);
    return error.place.column > 1 ? QStringLiteral("%1 (column %2)").arg(message, QString::number(error.place.column))
                                  : message;
}

}  // namespace

FExprBase FScriptText::bind(const QString& text, QString& fault) {
    if (text.trimmed().isEmpty()) {
        return FExprBase(FNull::null());
    }
    const FParsedExpression parsed = parseExpression(text);
    if (parsed.error) {
        fault = reasonOf(*parsed.error);
        return {};
    }
    const FScriptNames noVariables;
    FBinder binder(noVariables, QString());
    FExprBase bound = binder.bind(parsed.expression, FBinder::Use::Kept);
    if (binder.getError()) {
        fault = reasonOf(*binder.getError());
        return {};
    }
    return bound;
}

QString FScriptText::of(const FExprBase& value) {
    return value.isEmpty() ? QString() : value.toHistoryString();
}

bool FScriptText::lacksResults(const FExprBase& value) {
    const auto* call = dynamic_cast<const FMemberCmd*>(value.getStored());
    const FExprBase receiver = call ? call->getReceiver() : FExprBase();
    const FObject* stored = receiver.getStored();
    return stored && stored->isCmd() && receiver.canSafelyBeUpdated(false) &&
           (lacksResults(receiver) || !valueObject(receiver));
}

QString FScriptText::evaluated(const FExprBase& value) {
    const FObject* stored = value.getStored();
    if (!stored || (!stored->isCmd() && !stored->holdsValue())) {
        return value.isDetached() ? QStringLiteral("object is gone") : QString();
    }
    if (!value.canSafelyBeUpdated(false) || lacksResults(value)) {
        return QStringLiteral("not known yet");
    }
    const FObject* given = valueObject(value);
    return given ? given->toString().simplified() : QStringLiteral("NULL");
}
