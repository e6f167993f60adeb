#include "host/lodm/FLodmDefaultValue.h"

#include "host/core/FBool.h"
#include "host/core/FEnumBase.h"
#include "host/core/FNumber.h"
#include "host/core/FNumberText.h"
#include "host/core/FString.h"
#include "host/design/FEntryValue.h"
#include "host/script/FBinder.h"
#include "host/script/FScriptParser.h"

#include <algorithm>
#include <cmath>

namespace {

using Kind = FLodmEntry::Default;

bool isTruth(const QString& text) {
    return text == QLatin1String(lodm::trueWord) || text == QLatin1String(lodm::falseWord);
}

bool isNumber(const QString& text) {
    const std::optional<double> number = numberFromText(text);
    return number && std::isfinite(*number);
}

bool isPlain(const FExprBase& value) {
    const FObject* object = value.getStored();
    return object && object->getBlock()->kind == FObjectBlock::Kind::Plain && !object->isCmd();
}

}  // namespace

Kind FLodmDefaultValue::kindOf(const FObject& value) {
    const FObject* type = value.getPrototype();
    if (type == FString::null()) {
        return Kind::Text;
    }
    if (type == FBool::null()) {
        return Kind::Truth;
    }
    const bool isNumber = type == FDouble::null() && std::isfinite(static_cast<const FDouble&>(value).toDouble());
    return isNumber ? Kind::Number : Kind::Script;
}

QStringList FLodmDefaultValue::namesIn(const QString& script) {
    return parseExpression(script).expression.getNames();
}

QString FLodmDefaultValue::fault() const {
    if (mEntry.kind == Kind::Number && !isNumber(mEntry.value)) {
        return QStringLiteral("expected a number such as 12.5, found \"%1\"").arg(mEntry.value);
    }
    if (mEntry.kind == Kind::Truth && !isTruth(mEntry.value)) {
        return QStringLiteral("expected \"true\" or \"false\", found \"%1\"").arg(mEntry.value);
    }
    if (mEntry.kind == Kind::Script) {
        const FParsedExpression parsed = parseExpression(mEntry.value);
        return parsed.error ? QStringLiteral("the script text of a default is wrong: ") + parsed.error->message
                            : QString();
    }
    return {};
}

bool FLodmDefaultValue::hasNames() const {
    return mEntry.kind == Kind::Script && !namesIn(mEntry.value).isEmpty();
}

QString FLodmDefaultValue::missingName(const FScriptNames& names) const {
    const QStringList used = mEntry.kind == Kind::Script ? namesIn(mEntry.value) : QStringList();
    const auto missing = std::find_if(used.begin(), used.end(), [&names](const QString& name) {
        return !FEnumTable::isWord(name) && names.find(name).isEmpty();
    });
    return missing == used.end() ? QString() : *missing;
}

FExprBase FLodmDefaultValue::evaluate(const FScriptNames& names, QString& reason) const {
    switch (mEntry.kind) {
        case Kind::Number:
            return FExprBase(new FDouble(numberFromText(mEntry.value).value_or(0)));
        case Kind::Text:
            return FExprBase(new FString(mEntry.value));
        case Kind::Truth:
            return FExprBase(new FBool(mEntry.value == QLatin1String(lodm::trueWord)));
        case Kind::Script:
            return evaluateScript(names, reason);
        case Kind::None:
            break;
    }
    return {};
}

FExprBase FLodmDefaultValue::evaluateScript(const FScriptNames& names, QString& reason) const {
    const FParsedExpression parsed = parseExpression(mEntry.value);
    FBinder binder(names, QString());
    const FExprBase bound = binder.bind(parsed.expression, FBinder::Use::Kept);
    if (binder.getError()) {
        reason = binder.getError()->message;
        return {};
    }
    if (!bound.canSafelyBeUpdated(false)) {
        reason = QStringLiteral("\"%1\" would read files").arg(mEntry.value);
        return {};
    }
    const FExprBase value = entryValue(FExprBase(valueObject(bound)));
    if (!isPlain(value)) {
        reason = QStringLiteral("\"%1\" gives no number, text, truth value or file").arg(mEntry.value);
        return {};
    }
    return copyOfValue(value);
}
