#include "host/script/FOperatorCmd.h"

#include "host/script/FListLimits.h"

#include <cmath>
#include <optional>

FClassData FOperatorCmd::mClass("FOperatorCmd", &FCmd::mClass);
FClassData FListCmd::mClass("FListCmd", &FCmd::mClass);

namespace {

bool isComparison(FOperator op) {
    return rowOf(op).priority == comparisonPriority;
}

template <class T>
bool compare(FOperator op, const T& left, const T& right) {
    switch (op) {
        case FOperator::Equal:
            return left == right;
        case FOperator::NotEqual:
            return left != right;
        case FOperator::Less:
            return left < right;
        case FOperator::LessEqual:
            return left <= right;
        case FOperator::Greater:
            return left > right;
        default:
            return left >= right;
    }
}

double calculate(FOperator op, double left, double right) {
    switch (op) {
        case FOperator::Add:
            return left + right;
        case FOperator::Subtract:
            return left - right;
        case FOperator::Multiply:
            return left * right;
        case FOperator::Divide:
            return left / right;
        case FOperator::Modulo:
            return std::fmod(left, right);
        default:
            return std::pow(left, right);
    }
}

bool keepsWhole(FOperator op) {
    return op == FOperator::Add || op == FOperator::Subtract || op == FOperator::Multiply || op == FOperator::Modulo;
}

FExprBase number(double value, bool whole) {
    return FExprBase(whole ? FInteger::fit(value) : new FDouble(value));
}

const FDouble* asNumber(const FExprBase& handle) {
    return dynamic_cast<const FDouble*>(valueObject(handle));
}

std::optional<bool> asBool(const FExprBase& handle) {
    const auto* flag = dynamic_cast<const FBool*>(valueObject(handle));
    return flag ? std::optional<bool>(flag->getValue()) : std::nullopt;
}

bool isWhole(const FDouble* value) {
    return dynamic_cast<const FInteger*>(value) != nullptr;
}

}  // namespace

FOperatorCmd::FOperatorCmd(std::vector<FOperator> operators, std::vector<FExprBase> operands)
    : mOperators(std::move(operators)) {
    setName(QString::fromLatin1(rowOf(mOperators.front()).text));
    setArguments(std::move(operands));
    setOutOfDate(true);
}

const FObject* FOperatorCmd::getEvaluatedType() const {
    const bool givesBool = isLazy() || isAny(FOperator::Not) || (!mOperators.empty() && isComparison(mOperators[0]));
    return givesBool ? static_cast<const FObject*>(FBool::null()) : FBasicType::null();
}

int FOperatorCmd::priority() const {
    return rowOf(mOperators.front()).priority;
}

QString FOperatorCmd::operandInBrackets(std::size_t index) const {
    const FExprBase& operand = getArguments()[index];
    const auto* inner = dynamic_cast<const FOperatorCmd*>(operand.getStored());
    const bool isPower = isAny(FOperator::Power);
    // Rows are evaluated from left to right, and only powers from right to left.
    const bool isOuterSide = (index > 0) != isPower;
    const auto* literal = dynamic_cast<const FDouble*>(operand.getStored());
    const bool isNegativeBase = isPower && index == 0 && literal && std::signbit(literal->toDouble());
    const bool binds = inner && (inner->priority() > priority() || (inner->priority() == priority() && !isOuterSide));
    const bool brackets = (inner && !binds && !isUnary()) || (inner && isUnary() && inner->priority() < priority());
    const QString text = operandText(operand);
    return brackets || isNegativeBase ? QLatin1Char('(') + text + QLatin1Char(')') : text;
}

QString FOperatorCmd::toExpressionString() const {
    QString text = isUnary() ? getName() : QString();
    for (std::size_t i = 0; i < getArguments().size(); ++i) {
        text += i > 0 ? QString::fromLatin1(rowOf(mOperators[i - 1]).text) : QString();
        text += operandInBrackets(i);
    }
    return text;
}

FExprBase FOperatorCmd::refuse(FOperator op, std::initializer_list<FExprBase> operands) const {
    QStringList types;
    for (const FExprBase& operand : operands) {
        const FObject* object = valueObject(operand);
        types.append(object ? object->getClass() : QStringLiteral("NULL"));
    }
    warn(QStringLiteral("\"%1\" can't be applied to %2")
             .arg(QString::fromLatin1(rowOf(op).text), types.join(QStringLiteral(" and "))));
    return {};
}

FExprBase FOperatorCmd::execute() const {
    if (isLazy()) {
        return decide();
    }
    if (isUnary()) {
        return applyUnary();
    }
    FExprBase value = getArguments().front();
    for (std::size_t i = 0; i < mOperators.size(); ++i) {
        value = combine(mOperators[i], value, getArguments()[i + 1]);
    }
    return value;
}

FExprBase FOperatorCmd::applyUnary() const {
    const FExprBase& operand = getArguments().front();
    if (isAny(FOperator::Not)) {
        const std::optional<bool> flag = asBool(operand);
        return flag ? FExprBase(new FBool(!*flag)) : refuse(FOperator::Not, {operand});
    }
    const FDouble* value = asNumber(operand);
    if (!value) {
        return refuse(mOperators.front(), {operand});
    }
    return number(isAny(FOperator::Minus) ? -value->toDouble() : value->toDouble(), isWhole(value));
}

FExprBase FOperatorCmd::decide() const {
    const bool deciding = isAny(FOperator::Or);
    for (const FExprBase& operand : getArguments()) {
        const std::optional<bool> flag = asBool(operand);
        if (!flag) {
            return refuse(mOperators.front(), {operand});
        }
        if (*flag == deciding) {
            return FExprBase(new FBool(deciding));
        }
    }
    return FExprBase(new FBool(!deciding));
}

FExprBase FOperatorCmd::join(const FBasicType& left, const QString& right) const {
    const auto* text = dynamic_cast<const FString*>(&left);
    const QString plain = text ? QString() : left.toPlainString();
    const int size = text ? text->size() : plain.size();
    if (size > longestText - right.size()) {
        warn(QStringLiteral("the text would be longer than %1 characters").arg(longestText));
        return {};
    }
    return FExprBase(text ? text->joined(right) : new FString(plain + right));
}

FExprBase FOperatorCmd::combine(FOperator op, const FExprBase& left, const FExprBase& right) const {
    const FObject* a = valueObject(left);
    const FObject* b = valueObject(right);
    const FDouble* x = asNumber(left);
    const FDouble* y = asNumber(right);
    if (x && y) {
        if (isComparison(op)) {
            return FExprBase(new FBool(compare(op, x->toDouble(), y->toDouble())));
        }
        return number(calculate(op, x->toDouble(), y->toDouble()), keepsWhole(op) && isWhole(x) && isWhole(y));
    }
    const auto* text = dynamic_cast<const FString*>(a);
    const auto* other = dynamic_cast<const FString*>(b);
    if (text && other && isComparison(op)) {
        return FExprBase(new FBool(compare(op, text->getValue(), other->getValue())));
    }
    const auto* basicA = dynamic_cast<const FBasicType*>(a);
    const auto* basicB = dynamic_cast<const FBasicType*>(b);
    if (op == FOperator::Add && (text || other) && basicA && basicB) {
        return join(*basicA, basicB->toPlainString());
    }
    if (op == FOperator::Equal || op == FOperator::NotEqual) {
        const std::optional<bool> p = asBool(left);
        const std::optional<bool> q = asBool(right);
        const bool same = p && q ? *p == *q : a == b;
        return FExprBase(new FBool(same == (op == FOperator::Equal)));
    }
    return refuse(op, {left, right});
}

FListCmd::FListCmd(std::vector<FExprBase> elements) {
    setArguments(std::move(elements));
    setOutOfDate(true);
}

QString FListCmd::toExpressionString() const {
    QString text = argumentText();
    text[0] = QLatin1Char('[');
    text[text.size() - 1] = QLatin1Char(']');
    return text;
}

FExprBase FListCmd::execute() const {
    auto* list = new FObjectList;
    FExprBase result(list);
    for (const FExprBase& element : getArguments()) {
        list->add(FExpr<FObject>(element.getObject()));
    }
    const QString fault = listFault(*list);
    if (!fault.isEmpty()) {
        warn(fault);
        return {};
    }
    return result;
}
