#include "host/design/FConnectorInterface.h"

#include "host/core/FManaged.h"
#include "host/core/FObjectManager.h"

QList<FConnectorInterface*> FConnectorInterface::getConnectors(const QString& className) {
    QList<FConnectorInterface*> found;
    const FObject* prototype = FObject::getPrototype(className);
    const QList<FManaged*> objects =
        prototype ? FObjectManager::instance()->getManaged(prototype, QString(), false) : QList<FManaged*>();
    for (FManaged* object : objects) {
        if (auto* connector = dynamic_cast<FConnectorInterface*>(object)) {
            found.append(connector);
        }
    }
    return found;
}

QList<FConnectorInterface*> FConnectorInterface::getConnectors(const FDefinition* definition) {
    QList<FConnectorInterface*> found;
    for (FConnectorInterface* connector : getConnectors(QStringLiteral("FSoftwareConnector"))) {
        if (connector->getDefinition() == definition) {
            found.append(connector);
        }
    }
    return found;
}

FConnectorInterface* FConnectorInterface::create(const QString& className, const QString& name,
                                                 const FExpr<FExternComputation>& computation) {
    const auto* prototype = dynamic_cast<const FConnectorInterface*>(FObject::getPrototype(className));
    return prototype ? prototype->createConnector(name, computation) : nullptr;
}
