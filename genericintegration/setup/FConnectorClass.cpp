#include "genericintegration/setup/FConnectorClass.h"

#include "genericintegration/setup/FConnectorRecord.h"
#include "host/script/FCmdManager.h"

namespace {

[[maybe_unused]] const bool isRegistered = (FConnectorInterface::registerClass(FConnectorRecord::mClass), true);

}  // namespace

const FObject* FConnectorClass::initPrototype() {
    FCmdManager::instance()->addTable(FConnectorRecord::mClass);
    FEnum<SoftConItemSize>::initPrototype();
    return FConnectorRecord::initPrototype();
}
