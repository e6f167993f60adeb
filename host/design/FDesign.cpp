#include "host/design/FDesign.h"

#include "host/core/FObjectName.h"
#include "host/script/FCmdTable.h"

namespace {

void commands(FCmdTable& table) {
    table.entityCreator(
        "design", +[](const FNewName& name) { return FDesign::create(name.name); });
}

QString withoutReserved(const QString& name) {
    return legalName(name) == FDesign::reservedName() ? numberedName(FDesign::reservedName(), 1) : name;
}

}  // namespace

FClassData FDesign::mClass("FDesign", &FEntity::mClass, &commands);

FDesign* FDesign::create(const QString& name) {
    auto* design = new FDesign(withoutReserved(name));
    design->registerObject();
    return design;
}

FManaged* FDesign::setName(const QString& name) {
    return FEntity::setName(withoutReserved(name));
}

const QString& FDesign::reservedName() {
    static const QString name = QStringLiteral("baseline");
    return name;
}
