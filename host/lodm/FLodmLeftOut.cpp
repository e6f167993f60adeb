#include "host/lodm/FLodmLeftOut.h"

#include "host/core/FLogMsg.h"
#include "host/core/FObjectManager.h"
#include "host/design/FDefinition.h"
#include "host/design/FEntryDef.h"
#include "host/lodm/FLodmDefaultValue.h"
#include "host/script/FScriptParser.h"

namespace {

QStringList namesInDefault(const FEntryDef& entry) {
    const FObject* value = entry.getDefaultValue().getStored();
    const bool isScript = value && FLodmDefaultValue::kindOf(*value) == FLodmEntry::Default::Script;
    QStringList names =
        isScript ? FLodmDefaultValue::namesIn(entry.getDefaultValue().toHistoryString()) : QStringList();
    names.removeDuplicates();
    return names;
}

}  // namespace

void warnOfLeftOut(const FDefinition& definition, const QSet<FExpr<FManaged>>& saved) {
    int count = 0;
    for (const FExpr<FEntryBase>& handle : definition.getEntryMap()) {
        const auto* entry = static_cast<const FEntryDef*>(handle.ptr());
        for (const QString& name : namesInDefault(*entry)) {
            const FManaged* object = FObjectManager::instance()->find(name);
            const bool isLeftOut = object && object != &definition && !saved.contains(FExpr<FManaged>(object));
            if (isLeftOut && ++count <= mostErrors) {
                FLogMsg::warning(definition.getName(),
                                 QStringLiteral("the default of entry \"%1\" names \"%2\", which isn't saved along")
                                     .arg(entry->getFullName(), name),
                                 QStringLiteral("where no object has this name, the entry is read without a default"));
            }
        }
    }
    if (count > mostErrors) {
        FLogMsg::warning(definition.getName(),
                         QStringLiteral("%1 more objects in defaults aren't saved along").arg(count - mostErrors));
    }
}
