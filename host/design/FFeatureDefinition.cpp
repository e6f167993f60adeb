#include "host/design/FFeatureDefinition.h"

#include "host/design/FEntityLinks.h"
#include "host/script/FCmdTable.h"

namespace {

void commands(FCmdTable& table) {
    table.entityCreator(
        "featureDefinition", +[](const FNewName& name) { return FFeatureDefinition::create(name.name); });
    table
        .attribute<FFeatureDefinition>("setEntities", &FFeatureDefinition::setEntities,
                                       &FFeatureDefinition::getEntities, {"entities"})
        .attrName("Entities")
        .data();
}

}  // namespace

FClassData FFeatureDefinition::mClass("FFeatureDefinition", &FFeatureDefinitionBase::mClass, &commands,
                                      &FFeatureDefinition::fields);

FFeatureDefinition* FFeatureDefinition::create(const QString& name) {
    auto* made = new FFeatureDefinition(name);
    made->registerObject();
    return made;
}

std::vector<std::unique_ptr<FStateField>> FFeatureDefinition::fields() {
    return FStateFields<FFeatureDefinition>().linked(&FFeatureDefinition::mEntities).take();
}

QList<FExpr<FEntity>> FFeatureDefinition::getEntities() const {
    return FEntityLinks::present(mEntities);
}

void FFeatureDefinition::setEntities(const QList<FExpr<FEntity>>& entities) {
    recordChange();
    FEntityLinks::replace(*this, mEntities, entities);
    setOutOfDate(true);
}

void FFeatureDefinition::letGo() {
    FEntityLinks::replace(*this, mEntities, {});
}
