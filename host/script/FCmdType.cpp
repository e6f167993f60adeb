#include "host/script/FCmdType.h"

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
