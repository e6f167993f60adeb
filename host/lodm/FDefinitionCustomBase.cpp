#include "host/lodm/FDefinitionCustomBase.h"

#include "host/design/FEntryDef.h"

FClassData FDefinitionCustomBase::mClass("FDefinitionCustomBase", &FDefinition::mClass);

void FDefinitionCustomBase::init(const FDefinitionCustomBase* other) {
    if (!other) {
        return;
    }
    FDefinition::init(other);
    QList<FExpr<FEntryBase>> copies;
    for (const FExpr<FEntryBase>& entry : other->getEntries()) {
        copies.append(static_cast<const FEntryDef*>(entry.ptr())->copy());
    }
    setEntries(copies);
}
