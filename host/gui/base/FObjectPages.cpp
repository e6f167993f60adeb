#include "host/gui/base/FObjectPages.h"

#include "host/core/FManaged.h"

#include <QHash>

namespace {

QHash<QString, FObjectPages::Make>& makers() {
    static QHash<QString, FObjectPages::Make> all;
    return all;
}

const FObjectPages::Make* makerFor(const FManaged* object) {
    for (const FObject* type = object ? object->getPrototype() : nullptr; type; type = type->getSuperClass()) {
        const auto found = makers().constFind(type->getClass());
        if (found != makers().constEnd()) {
            return &*found;
        }
    }
    return nullptr;
}

}  // namespace

void FObjectPages::set(const QString& className, const Make& make) {
    makers().insert(className, make);
}

bool FObjectPages::has(const FManaged* object) {
    return makerFor(object) != nullptr;
}

FObjectPage* FObjectPages::make(FManaged& object, FNavigator& navigator) {
    const Make* make = makerFor(&object);
    return make ? (*make)(object, navigator) : nullptr;
}
