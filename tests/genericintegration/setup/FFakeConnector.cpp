#include "tests/genericintegration/setup/FFakeConnector.h"

#include "host/core/FInitPrototype.h"

FClassData FFakeConnectorBase::mClass("FSoftConBase", &FManaged::mClass);
FClassData FFakeConnector::mClass("FSoftwareConnector", &FFakeConnectorBase::mClass);

namespace {

const FInitPrototypes<FFakeConnectorBase, FFakeConnector> types;

}  // namespace

FConnectorInterface* FFakeConnector::createConnector(const QString& name,
                                                     const FExpr<FExternComputation>& computation) const {
    auto* connector = new FFakeConnector;
    connector->setName(name);
    connector->setComputation(computation);
    connector->registerObject();
    return connector;
}
