#include "host/design/FConnectorInterface.h"

#include "host/core/FManaged.h"
#include "host/core/FObjectManager.h"

#include <algorithm>
#include <vector>

namespace {

std::vector<FClassData*>& classes() {
    static std::vector<FClassData*> registered;
    return registered;
}

}  // namespace

void FConnectorInterface::registerClass(FClassData& data) {
    classes().push_back(&data);
}

QList<FConnectorInterface*> FConnectorInterface::getConnectors() {
    QList<FConnectorInterface*> found;
    if (classes().empty()) {
        return found;
    }
    for (FManaged* object : FObjectManager::instance()->getManaged(FManaged::null())) {
        const bool isConnector = std::any_of(classes().begin(), classes().end(), [object](const FClassData* data) {
            return data->isSuperClassOf(object->getClassData());
        });
        if (auto* connector = isConnector ? dynamic_cast<FConnectorInterface*>(object) : nullptr) {
            found.append(connector);
        }
    }
    return found;
}

QList<FConnectorInterface*> FConnectorInterface::getConnectors(const FDefinition* definition) {
    QList<FConnectorInterface*> found = getConnectors();
    found.erase(
        std::remove_if(found.begin(), found.end(),
                       [definition](const auto* connector) { return connector->getDefinition() != definition; }),
        found.end());
    return found;
}

FConnectorInterface* FConnectorInterface::create(const QString& name, const FExpr<FExternComputation>& computation) {
    const FObject* prototype = classes().empty() ? nullptr : FObject::getPrototype(classes().back()->getName());
    const auto* connector = dynamic_cast<const FConnectorInterface*>(prototype);
    return connector ? connector->createConnector(name, computation) : nullptr;
}

void FConnectorInterface::refreshAll() {
    for (FConnectorInterface* connector : getConnectors()) {
        connector->asManaged()->update();
        connector->refreshCommandFileEditors();
    }
}
