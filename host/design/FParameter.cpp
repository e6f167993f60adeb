#include "host/design/FParameter.h"

#include "host/core/FHistory.h"
#include "host/script/FCmd.h"
#include "host/script/FCmdTable.h"

namespace {

void commands(FCmdTable& table) {
    table.entityCreator("parameter",
                        +[](const FNewName& name, const FKeptExpression& value) {
                            return FParameter::create(name.scope, name.name, value.orEmpty());
                        },
                        {"value=NULL"});
    table
        .attribute<FParameter>(
            "setValue",
            +[](FParameter& parameter, const FKeptExpression& value) {
                return FExpr<FParameter>(parameter.setValue(value.orEmpty()) ? &parameter : nullptr);
            },
            +[](const FParameter& parameter) { return FExpr<FObject>(parameter.getValue()); }, {"value"})
        .attrName("Value")
        .data();
    table
        .member<FParameter>("setUpdateOnDemand",
                            +[](FParameter& parameter, bool onDemand) { parameter.setUpdateOnDemand(onDemand); },
                            {"onDemand"})
        .data();
    table
        .member<FParameter>(
            "getValue", +[](const FParameter& parameter) { return FExpr<FObject>(parameter.getValueObject()); })
        .query();
}

}  // namespace

FClassData FParameter::mClass("FParameter", &FEntity::mClass, &commands, &FParameter::fields);

FParameter::FParameter(const QString& name) : FClass(name) {
    if (!isInitializingPrototype()) {
        setUpdateOnDemand(false);
    }
}

std::vector<std::unique_ptr<FStateField>> FParameter::fields() {
    return FStateFields<FParameter>()
        .linked(&FParameter::mValue)
        .member(static_cast<bool FParameter::*>(&FParameter::mImmediateUpdate))
        .take();
}

FParameter* FParameter::create(const FExpr<FScope>& scope, const QString& name, const FExprBase& value) {
    Q_UNUSED(scope)
    auto* parameter = new FParameter(name);
    parameter->registerObject();
    parameter->setValue(value);
    return parameter;
}

bool FParameter::setValue(const FExprBase& value) {
    recordChange();
    if (!mValue.assignFor(this, value)) {
        FCmd::warnNow(getClass(),
                      QStringLiteral("%1 would depend on itself if it were %2").arg(getName(), value.toHistoryString()),
                      QStringLiteral("Its value stays %1").arg(mValue.toHistoryString()));
        return false;
    }
    setOutOfDate(true);
    return true;
}

FObject* FParameter::getValueObject() const {
    update();
    return mResult.getObject();
}

bool FParameter::doUpdate() const {
    const FObject* object = mValue.getObject();
    mResult = FExprBase(object ? object->getValueObject() : nullptr);
    return FEntity::doUpdate();
}

QStringList FParameter::furtherSavedCommands() const {
    return isUpdateOnDemand() ? QStringList{QStringLiteral("setUpdateOnDemand(true)")} : QStringList();
}

// The value may be a list that holds the parameter itself.
void FParameter::letGo() {
    mValue.unregisterClient(this);
    mValue = FExprBase();
    mResult = FExprBase();
}
