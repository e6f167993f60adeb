#include "tests/genericintegration/setup/FFakeConnector.h"

#include "host/core/FInitPrototype.h"

FClassData FFakeConnector::mClass("FFakeConnector", &FConnectorRecord::mClass);

namespace {

const FInitPrototypes<FFakeConnector> types;

}  // namespace
