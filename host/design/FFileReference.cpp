#include "host/design/FFileReference.h"

#include "host/design/FEntryValue.h"
#include "host/script/FCmd.h"
#include "host/script/FCmdType.h"

FClassData FFileReference::mClass("FFileReference", &FBasicType::mClass, nullptr, &FFileReference::fields);

std::vector<std::unique_ptr<FStateField>> FFileReference::fields() {
    return FStateFields<FFileReference>().linked(&FFileReference::mFileName).take();
}

bool FFileReference::set(FExprBase& member, const FExprBase& value) {
    entryValueChanges(*this);
    if (!member.assignFor(this, value)) {
        FCmd::warnNow(getClass(),
                      QStringLiteral("a file name would depend on itself if it were %1").arg(value.toHistoryString()),
                      QStringLiteral("It stays %1").arg(member.toHistoryString()));
        return false;
    }
    setOutOfDate(true);
    return true;
}

QString FFileReference::textOf(const FExprBase& expression) {
    const auto* value = dynamic_cast<const FBasicType*>(valueObject(expression));
    return value && value != FNull::null() ? value->toPlainString() : QString();
}
