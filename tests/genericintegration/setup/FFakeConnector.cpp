#include "tests/genericintegration/setup/FFakeConnector.h"

#include "host/core/FInitPrototype.h"

FClassData FFakeConnector::mClass("FFakeConnector", &FManaged::mClass);

namespace {

const FInitPrototypes<FFakeConnector> types;
[[maybe_unused]] const bool isRegistered = (FConnectorInterface::registerClass(FFakeConnector::mClass), true);

}  // namespace

FConnectorInterface* FFakeConnector::createConnector(const QString& name,
                                                     const FExpr<FExternComputation>& computation) const {
    auto* connector = new FFakeConnector;
    connector->setName(name);
    connector->setComputation(computation);
    connector->registerObject();
    return connector;
}
