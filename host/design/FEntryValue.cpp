#include "host/design/FEntryValue.h"

#include "host/core/FEnumBase.h"
#include "host/core/FHistory.h"
#include "host/core/FNull.h"
#include "host/design/FEntry.h"
#include "host/design/FFileReference.h"
#include "host/design/FGeometryExport.h"
#include "host/design/FParameter.h"
#include "host/script/FCmd.h"
#include "host/script/FCmdType.h"

#include <algorithm>

namespace {

bool isInteger(const FObject* value) {
    return objectCast<FInteger>(value) && !objectCast<FEnumBase>(value);
}

bool hasParts(const FClassData* type) {
    return type && (type->mpNull->isTypeOf(FFileReference::null()) || type->mpNull->isTypeOf(FGeometryExport::null()));
}

/** A call that makes a value with parts. One that would read a file for it stays an expression. */
bool makesValue(const FObject* object) {
    const auto* command = objectCast<FCmd>(object);
    const FCmdRow* row = command ? command->getRow() : nullptr;
    if (!row || row->kind != FCmdRow::Kind::Global || !hasParts(row->returnType.cls)) {
        return false;
    }
    const std::vector<FExprBase>& given = command->getArguments();
    for (std::size_t i = 0; i < std::min(given.size(), row->arguments.size()); ++i) {
        if (!row->arguments[i].type.isKept && !given[i].canSafelyBeUpdated(false)) {
            return false;
        }
    }
    return true;
}

}  // namespace

FExprBase entryValue(const FExprBase& given) {
    const FExprBase value = makesValue(given.getStored()) ? FExprBase(given.getObject()) : given;
    const FObject* stored = value.getStored();
    if (stored == FNull::null()) {
        return {};
    }
    return isInteger(stored) ? FExprBase(new FDouble(static_cast<const FInteger*>(stored)->toDouble())) : value;
}

FExprBase copyOfValue(const FExprBase& value) {
    const FObject* stored = value.getStored();
    const bool isPlain = stored && !stored->isCmd() && stored->getBlock()->kind == FObjectBlock::Kind::Plain;
    const FExprBase copy(isPlain ? stored->clone() : nullptr);
    return copy.isEmpty() ? value : copy;
}

void entryValueChanges(const FObject& value) {
    for (const FObject* client : value.getClients()) {
        if (const auto* entry = objectCast<FEntry>(client)) {
            FHistory::instance()->record(entry);
        }
    }
}

const FObject* typeOfValue(const FExprBase& value) {
    FExprBase source = value;
    while (const auto* parameter = dynamic_cast<const FParameter*>(source.getStored())) {
        source = parameter->getValue();
    }
    const FObject* type = source.getType();
    const bool isOpen = type == FObject::null() && source.canSafelyBeUpdated(false);
    const FObject* given = isOpen ? valueObject(source) : nullptr;
    return given ? given->getPrototype() : type;
}
