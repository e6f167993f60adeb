#pragma once

#include "host/script/FCmd.h"
#include "host/script/FSyntaxExpr.h"

/**
 * An operator with its operand, or a row of operands with an operator of the same priority between each two, carried
 * out from left to right. `+ - * %` of whole numbers give a whole number; `+` of texts joins them. `&&` and `||` look
 * at the next operand only when those before don't decide.
 */
class FOperatorCmd : public FClass<FOperatorCmd, FCmd> {
 public:
    static FClassData mClass;

    FOperatorCmd() = default;
    FOperatorCmd(std::vector<FOperator> operators, std::vector<FExprBase> operands);
    FObject* clone() const override { return new FOperatorCmd(mOperators, getArguments()); }

    const FObject* getEvaluatedType() const override;
    QString toExpressionString() const override;

 protected:
    bool updatesSuppliersItself() const override { return isLazy() || FCmd::updatesSuppliersItself(); }
    FExprBase execute() const override;

 private:
    bool isLazy() const { return isAny(FOperator::And) || isAny(FOperator::Or); }
    bool isAny(FOperator op) const { return !mOperators.empty() && mOperators.front() == op; }
    bool isUnary() const { return getArguments().size() == 1; }
    int priority() const;
    FExprBase applyUnary() const;
    FExprBase combine(FOperator op, const FExprBase& left, const FExprBase& right) const;
    FExprBase join(const FBasicType& left, const QString& right) const;
    FExprBase decide() const;
    FExprBase refuse(FOperator op, std::initializer_list<FExprBase> operands) const;
    QString operandInBrackets(std::size_t index) const;

    std::vector<FOperator> mOperators;
};

/** A list in an expression: it gives a new list of its elements' present values. */
class FListCmd : public FClass<FListCmd, FCmd> {
 public:
    static FClassData mClass;

    FListCmd() = default;
    explicit FListCmd(std::vector<FExprBase> elements);
    FObject* clone() const override { return new FListCmd(getArguments()); }

    const FObject* getEvaluatedType() const override { return FObjectList::null(); }
    QString toExpressionString() const override;

 protected:
    FExprBase execute() const override;
};
