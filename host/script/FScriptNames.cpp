#include "host/script/FScriptNames.h"

#include "host/core/FEnumBase.h"
#include "host/core/FManaged.h"
#include "host/core/FObjectManager.h"
#include "host/script/FCmdManager.h"

FExprBase FScriptNames::find(const QString& name) const {
    const auto variable = mVariables.find(name);
    if (variable != mVariables.end()) {
        return *variable;
    }
    const FExprBase declared = mDeclared.value(name);
    if (isAnnounced(name)) {
        return declared.isValid() ? declared : FExprBase();
    }
    return declared.isValid() ? declared : FExprBase(FObjectManager::instance()->find(name));
}

void FScriptNames::announce(const QString& name) {
    mAnnounced.insert(name);
    mDeclared.remove(name);
}

bool FScriptNames::isObject(const QString& name) const {
    return mDeclared.value(name).isValid() || FObjectManager::instance()->find(name);
}

bool FScriptNames::isGone(const QString& name) const {
    return mDeclared.contains(name) && !isObject(name);
}

QString FScriptNames::suggestion(const QString& name) const {
    constexpr int most = 20;
    return ++mSuggestions <= most ? didYouMean(name, getNames() + FEnumTable::getWords()) : QString();
}

QStringList FScriptNames::getNames() const {
    QStringList names = QStringList(mVariables.keys()) + FObjectManager::instance()->getNames();
    for (auto declared = mDeclared.begin(); declared != mDeclared.end(); ++declared) {
        if (declared->isValid()) {
            names.append(declared.key());
        }
    }
    return names;
}
