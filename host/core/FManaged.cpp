#include "host/core/FManaged.h"

#include "host/core/FChanges.h"
#include "host/core/FHistory.h"
#include "host/core/FImmediateUpdateBlocker.h"
#include "host/core/FMerixCtrl.h"
#include "host/core/FObjectManager.h"
#include "host/core/FObjectName.h"
#include "host/core/FScriptLanguage.h"

#include <utility>

FClassData FManaged::mClass("FManaged", &FObject::mClass, nullptr, &FManaged::fields);
bool FManaged::mInitPrototype = false;

namespace {

/** Far enough from the largest number that numbers of new objects don't get there. */
constexpr int largestDbId = 1'000'000'000;

std::vector<FExprBase>& parents() {
    static std::vector<FExprBase> stack;
    return stack;
}

/** FGenIntFile gives genIntFile. */
QString defaultName(const QString& className) {
    QString name = className.startsWith(QLatin1Char('F')) ? className.mid(1) : className;
    name[0] = name[0].toLower();
    return name;
}

}  // namespace

FManaged::FManaged(const QString& name) : mName(legalName(name)) {
    if (!isInitializingPrototype()) {
        getBlock()->kind = FObjectBlock::Kind::Managed;
    }
}

FManaged::FManaged(const FManaged& other) : FManaged(other.mName) {
    *this = other;
}

FManaged& FManaged::operator=(const FManaged& other) {
    if (this != &other) {
        recordChange();
        mDocu = other.mDocu;
        mSystemLevel = other.mSystemLevel;
        mInProject = other.mInProject;
        mInUserConfig = other.mInUserConfig;
        mDefault = other.mDefault;
        mConfigurationHandle = other.mConfigurationHandle;
    }
    return *this;
}

void FManaged::recordChange() {
    FHistory::instance()->record(this);
}

void FManaged::setInProject(bool inProject) {
    recordChange();
    mInProject = inProject;
}

void FManaged::setInUserConfig(bool inUserConfig) {
    recordChange();
    mInUserConfig = inUserConfig;
}

void FManaged::setDefault(bool isDefault) {
    recordChange();
    mDefault = isDefault;
}

void FManaged::setConfigurationHandle(const FExpr<FManaged>& configuration) {
    recordChange();
    mConfigurationHandle = configuration;
}

std::vector<std::unique_ptr<FStateField>> FManaged::fields() {
    return FStateFields<FManaged>()
        .member(&FManaged::mName, [](FManaged& object) { object.renamed(); })
        .member(&FManaged::mInProject)
        .member(&FManaged::mInUserConfig)
        .member(&FManaged::mDefault)
        .member(&FManaged::mConfigurationHandle)
        .member(&FManaged::mDocu)
        .take();
}

void FManaged::init(const FManaged* other) {
    if (other) {
        recordChange();
        mDocu = other->mDocu;
    }
}

void FManaged::copyAttributes(FClassData& ofClass, const FManaged& other) {
    recordChange();
    FScriptLanguage::instance()->copyAttributes(ofClass, *this, other);
}

FManaged* FManaged::setName(const QString& name) {
    const QString legal = legalName(name);
    if (legal != mName && !legal.isEmpty()) {
        recordChange();
        mName = mInModel ? FObjectManager::instance()->uniqueName(legal, this) : legal;
        renamed();
    }
    return this;
}

void FManaged::renamed() {
    if (mInModel && mKnownName != mName) {
        const QString oldName = std::exchange(mKnownName, mName);
        FObjectManager::instance()->rename(this, oldName, mName);
        // A value may depend on the name, such as the folder of a run.
        setOutOfDate(true);
        emit FChanges::instance()->objectRenamed(this, oldName);
    }
}

void FManaged::registerObject() {
    if (mInModel || isInitializingPrototype()) {
        return;
    }
    if (!mDbId) {
        mDbId = FObjectManager::instance()->nextId();
        mParent = currentParentReg();
    }
    if (mName.isEmpty()) {
        mName = defaultName(getClass());
    }
    mName = FObjectManager::instance()->uniqueName(mName, this);
    FHistory::instance()->recordCreation(this);
    enter();
}

bool FManaged::restoreDbId(int id) {
    if (!mInModel || id <= 0 || id > largestDbId || !FMerixCtrl::instance()->isLoadingProject()) {
        return false;
    }
    // Whoever has the number got it while the project was being read; its own may come with one of the next lines.
    if (FManaged* other = FObjectManager::instance()->find(id); other && other != this) {
        FObjectManager::instance()->renumber(other, other->mDbId, FObjectManager::instance()->nextId());
        other->mDbId = FObjectManager::instance()->lastId();
    }
    FObjectManager::instance()->renumber(this, mDbId, id);
    mDbId = id;
    return true;
}

void FManaged::enter() {
    getBlock()->outOfModel = false;
    mInModel = true;
    mKnownName = mName;
    FObjectManager::instance()->enter(this);
    rememberState();
    enterModel();
    emit FChanges::instance()->objectEntered(this);
}

void FManaged::leave() {
    leaveModel();
    FObjectManager::instance()->leave(this, mKnownName);
    mInModel = false;
    getBlock()->outOfModel = true;
    emit FChanges::instance()->objectLeft(this);
}

bool FManaged::destroy(FManaged* object, bool tellClients) {
    // An object that goes may take others along, which may want to take it along in turn.
    if (!object || !object->mInModel || object->mLeaving || FHistory::instance()->isReplaying()) {
        return false;
    }
    object->mLeaving = true;
    const FExprBase keep(object);
    const std::vector<FObject*> clients = object->getClients();
    FHistory::instance()->recordDestruction(object, clients);
    object->leave();
    object->mLeaving = false;
    if (tellClients) {
        object->tellGone();
    }
    if (object->mHeldBySteps == 0) {
        object->end();
    }
    return true;
}

void FManaged::tellGone() const {
    // An update may free other clients.
    const FImmediateUpdateBlocker blocker;
    for (const FObject* client : getClients()) {
        client->setOutOfDate(true);
    }
}

void FManaged::holdByStep(bool hold) {
    mHeldBySteps += hold ? 1 : -1;
    if (mHeldBySteps == 0 && !mInModel) {
        end();
    }
}

void FManaged::end() {
    letGo();
    // A parent may hold its children.
    mParent = {};
    forgetState();
}

void FManaged::addDocu(const QString& text, unsigned int area) {
    recordChange();
    mDocu[area] += text;
}

void FManaged::saveScopeManner(QTextStream& stream, unsigned int indent, bool inScope, bool flag) const {
    FScriptLanguage::instance()->saveObject(*this, stream, indent, inScope, flag);
}

void FManaged::saveAttributes(QTextStream& stream, const std::vector<const FObject*>& attributes, unsigned int indent,
                              bool flag) const {
    FScriptLanguage::instance()->saveAttributes(*this, stream, attributes, indent, flag);
}

void startParentReg(const FObject* parent) {
    parents().emplace_back(parent);
}

void stopParentReg() {
    if (!parents().empty()) {
        parents().pop_back();
    }
}

const FObject* currentParentReg() {
    return parents().empty() ? nullptr : parents().back().getStored();
}

void destroyChildrenOf(const FObject* parent) {
    const QList<FManaged*> children = FObjectManager::instance()->getChildrenOf(parent);
    // One child may take others along.
    const std::vector<FExprBase> handles(children.begin(), children.end());
    for (auto child = handles.rbegin(); child != handles.rend(); ++child) {
        FManaged::destroy(static_cast<FManaged*>(child->getStored()), true);
    }
}
