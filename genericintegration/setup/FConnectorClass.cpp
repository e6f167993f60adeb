#include "genericintegration/setup/FConnectorClass.h"

#include "genericintegration/setup/FConnectorRecord.h"
#include "host/script/FCmdManager.h"

namespace {

struct Choice {
    FClassData* data = nullptr;
    FConnectorClass::Build build = nullptr;
};

Choice& windowClass() {
    static Choice choice;
    return choice;
}

}  // namespace

void FConnectorClass::setWindowClass(FClassData& data, Build build) {
    windowClass() = {&data, build};
}

const FObject* FConnectorClass::initPrototype() {
    const bool hasWindow = windowClass().build && FPrototypes::hasWindows();
    const Choice chosen =
        hasWindow ? windowClass() : Choice{&FConnectorRecord::mClass, &FConnectorRecord::initPrototype};
    FConnectorInterface::registerClass(*chosen.data);
    FCmdManager::instance()->addTable(*chosen.data);
    FEnum<SoftConItemSize>::initPrototype();
    return chosen.build();
}
