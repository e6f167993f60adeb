#include "host/design/FDesign.h"

#include "host/script/FCmdTable.h"

namespace {

void commands(FCmdTable& table) {
    table.entityCreator(
        "design", +[](const FNewName& name) { return FDesign::create(name.name); });
}

}  // namespace

FClassData FDesign::mClass("FDesign", &FEntity::mClass, &commands);

FDesign* FDesign::create(const QString& name) {
    auto* design = new FDesign(name);
    design->registerObject();
    return design;
}
