#include "tests/genericintegration/setup/FFakeConnector.h"

#include "host/core/FInitPrototype.h"

FClassData FFakeConnector::mClass("FSoftwareConnector", &FManaged::mClass);

namespace {

const FInitPrototypes<FFakeConnector> types;

}  // namespace

FConnectorInterface* FFakeConnector::createConnector(const QString& name,
                                                     const FExpr<FExternComputation>& computation) const {
    Q_UNUSED(computation)
    auto* connector = new FFakeConnector;
    connector->setName(name);
    connector->registerObject();
    return connector;
}
