#include "host/design/FEntityGroup.h"

#include "host/design/FEntityLinks.h"
#include "host/script/FCmdTable.h"

namespace {

void commands(FCmdTable& table) {
    table.entityCreator(
        "entityGroup", +[](const FNewName& name) { return FEntityGroup::create(name.name); });
    table.attribute<FEntityGroup>("setEntities", &FEntityGroup::setEntities, &FEntityGroup::getEntities, {"entities"})
        .attrName("Entities")
        .data();
}

}  // namespace

FClassData FEntityGroup::mClass("FEntityGroup", &FEntity::mClass, &commands, &FEntityGroup::fields);

FEntityGroup* FEntityGroup::create(const QString& name) {
    auto* made = new FEntityGroup(name);
    made->registerObject();
    return made;
}

std::vector<std::unique_ptr<FStateField>> FEntityGroup::fields() {
    return FStateFields<FEntityGroup>().linked(&FEntityGroup::mEntities).take();
}

QList<FExpr<FEntity>> FEntityGroup::getEntities() const {
    return FEntityLinks::present(mEntities);
}

void FEntityGroup::setEntities(const QList<FExpr<FEntity>>& entities) {
    recordChange();
    FEntityLinks::replace(*this, mEntities, entities);
    setOutOfDate(true);
}

void FEntityGroup::letGo() {
    FEntityLinks::replace(*this, mEntities, {});
}
