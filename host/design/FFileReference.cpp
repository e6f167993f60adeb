#include "host/design/FFileReference.h"

#include "host/script/FCmdType.h"

FClassData FFileReference::mClass("FFileReference", &FBasicType::mClass, nullptr, &FFileReference::fields);

std::vector<std::unique_ptr<FStateField>> FFileReference::fields() {
    return FStateFields<FFileReference>().linked(&FFileReference::mFileName).take();
}

bool FFileReference::set(FExprBase& member, const FExprBase& value) {
    member.unregisterClient(this);
    if (!value.registerClient(this)) {
        member.restoreClient(this);
        return false;
    }
    member = value;
    setOutOfDate(true);
    return true;
}

QString FFileReference::textOf(const FExprBase& expression) {
    const auto* value = dynamic_cast<const FBasicType*>(valueObject(expression));
    return value && value != FNull::null() ? value->toPlainString() : QString();
}
