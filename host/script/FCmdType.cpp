#include "host/script/FCmdType.h"

#include "host/script/FOperatorCmd.h"

#include <cmath>

FObject* valueObject(const FExprBase& handle) {
    FObject* object = handle.getObject();
    return object ? object->getValueObject() : nullptr;
}

bool cmdtype::wholeNumber(const FExprBase& handle, double least, double most, double& number) {
    const auto* object = dynamic_cast<const FDouble*>(valueObject(handle));
    const double value = object ? object->toDouble() : 0;
    const bool whole = object && std::trunc(value) == value && value >= least && value <= most;
    number = whole ? value : 0;
    return whole;
}

bool cmdtype::isScriptNull(const FExprBase& handle) {
    return handle.getObject() == FNull::null();
}

FExprBase FKeptExpression::orEmpty() const {
    return expression.getStored() == FNull::null() ? FExprBase() : expression;
}

namespace {

/** The list as written: elements that are expressions aren't evaluated. */
FExpr<FObjectList> listAsWritten(const FExprBase& handle) {
    const auto* command = dynamic_cast<const FListCmd*>(handle.getStored());
    if (!command) {
        return FExpr<FObjectList>(handle.getObject());
    }
    const FExpr<FObjectList> list(new FObjectList);
    for (const FExprBase& element : command->getArguments()) {
        const bool isList = dynamic_cast<const FListCmd*>(element.getStored());
        list->add(FExpr<FObject>(isList ? FExprBase(listAsWritten(element)) : element));
    }
    return list;
}

}  // namespace

FCmdType FCmdTypeOf<FKeptList>::type() {
    FCmdType type{QStringLiteral("FObjectList"), QStringLiteral("FObjectList"), &FObjectList::mClass,
                  [](const FExprBase& handle, std::any& value) {
                      const FExpr<FObjectList> list = listAsWritten(handle);
                      value = FKeptList{list};
                      return static_cast<bool>(list);
                  }};
    type.isHandle = true;
    type.isKept = true;
    return type;
}
