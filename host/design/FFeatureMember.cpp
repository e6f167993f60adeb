#include "host/design/FFeatureMember.h"

#include "host/script/FCmd.h"
#include "host/script/FCmdTable.h"

void FFeatureMember::commands(FCmdTable& table) {
    using F = FFeatureMember;
    table.entityCreator(
        "featureMember", +[](const FNewName& name) { return FFeatureMember::create(name.name); });
    table.attribute<F>("setFeature", &F::setFeature, &F::getFeature, {"feature"}).attrName("Feature").data();
    table.plain<F>("setIndex", &F::mIndex, {"index"}).attrName("Index").copied();
    table.member<F>("getEntity", &F::getEntity).query();
}

FClassData FFeatureMember::mClass("FFeatureMember", &FEntity::mClass, &FFeatureMember::commands,
                                  &FFeatureMember::fields);

FFeatureMember* FFeatureMember::create(const QString& name) {
    auto* made = new FFeatureMember(name);
    made->registerObject();
    return made;
}

std::vector<std::unique_ptr<FStateField>> FFeatureMember::fields() {
    return FStateFields<FFeatureMember>().linked(&FFeatureMember::mFeature).take();
}

void FFeatureMember::setFeature(const FExpr<FFeatureDefinitionBase>& feature) {
    recordChange();
    if (!mFeature.assignFor(this, feature)) {
        FCmd::warnNow(getClass(),
                      QStringLiteral("%1 would depend on itself with %2").arg(getName(), feature.toString()),
                      QStringLiteral("Its feature stays unchanged"));
    }
    setOutOfDate(true);
}

FEntity* FFeatureMember::getEntity() const {
    return mFeature ? mFeature->getEntities().value(mIndex).ptr() : nullptr;
}

void FFeatureMember::letGo() {
    mFeature.assignFor(this, {});
}
