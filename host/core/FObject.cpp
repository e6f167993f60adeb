#include "host/core/FObject.h"

#include "host/core/FDocuArea.h"
#include "host/core/FImmediateUpdateBlocker.h"
#include "host/core/FManaged.h"
#include "host/core/FObjectManager.h"
#include "host/core/FPrototypes.h"
#include "host/core/FScriptLanguage.h"
#include "host/core/FTypeDocu.h"
#include "host/core/FUpdateGraph.h"
#include "host/core/FUpdateLinks.h"
#include "host/core/FView.h"

#include <algorithm>
#include <unordered_set>

FClassData FObject::mClass("FObject", nullptr);
bool FObject::mInitPrototype = false;
int VERBOSE = qEnvironmentVariableIntValue("VERBOSE");

FObject::FObject()
    : mpBlock(new FObjectBlock{
          this, 0, isInitializingPrototype() ? FObjectBlock::Kind::Elsewhere : FObjectBlock::Kind::Plain, false}) {}

FObject::FObject(const FObject&) : FObject() {}

// Identity, links and state of update stay with the object; only what it holds is assigned.
FObject& FObject::operator=(const FObject&) {  // NOLINT(bugprone-unhandled-self-assignment): nothing is assigned
    return *this;
}

FObject::~FObject() {
    FUpdateGraph::forget(this);
    mpBlock->object = nullptr;
    if (mpBlock->handles == 0) {
        delete mpBlock;
    }
}

bool FObject::isInitializingPrototype() {
    return FObject::mInitPrototype || FManaged::mInitPrototype || FView::mInitPrototype;
}

void FObject::setOwnedElsewhere() {
    mpBlock->kind = FObjectBlock::Kind::Elsewhere;
}

QString FObject::getClass() const {
    return getClassData().getName();
}

const FObject* FObject::getPrototype() const {
    return getClassData().mpNull;
}

const FObject* FObject::getSuperClass() const {
    const FClassData* super = getClassData().getSuper();
    return super ? super->mpNull : nullptr;
}

bool FObject::isNull() const {
    return getPrototype() == this;
}

bool FObject::isTypeOf(const FObject* other) const {
    return other && other->isSuperClassOf(this);
}

bool FObject::isSuperClassOf(const FObject* other) const {
    return other && getClassData().isSuperClassOf(other->getClassData());
}

void FObject::initCmds() const {
    if (areCmdsInitialized()) {
        return;
    }
    setCmdsInitialized();
    FScriptLanguage::instance()->registerCommands(classData());
}

void FObject::initTypeDocu() const {
    if (isTypeDocuInitialized()) {
        return;
    }
    const QString key = QLatin1Char('!') + getClass();
    addTypeDocu(FTypeDocu::translate(key), 1);
    addTypeDocu(FTypeDocu::translate(key + QLatin1String(":example")), 2);
    setTypeDocuInitialized();
}

void FObject::addTypeDocu(const QString& text, int area) const {
    FTypeDocu::add(getClass(), text, area);
}

QString FObject::getDocuString(int area) const {
    initCmds();  // may add texts
    initTypeDocu();
    const QString text = FTypeDocu::get(getClass(), area);
    const bool isDescription = area == static_cast<int>(FDocuArea::Description);
    return isDescription ? text + FTypeDocu::get(getClass(), static_cast<int>(FDocuArea::Help)) : text;
}

void FObject::addPrototype(const FObject* prototype) {
    FPrototypes::add(prototype);
}

const FObject* FObject::getPrototype(const QString& className) {
    return FPrototypes::find(className);
}

const FObject* FObject::initPrototype() {
    return FPrototypes::build(mClass, FFamily::Object, []() -> const FObject* { return new FObject; });
}

bool FObject::exists(const FObject* object) {
    return FObjectManager::instance()->contains(object);
}

bool FObject::canSafelyBeUpdated(bool mayReadFiles) const {
    std::vector<const FObject*> todo{this};
    std::unordered_set<const FObject*> seen{this};
    for (std::size_t i = 0; i < todo.size(); ++i) {
        if (!todo[i]->isSafeAlone(mayReadFiles)) {
            return false;
        }
        for (const FExprBase& operand : todo[i]->getOperands()) {
            const FObject* stored = operand.getStored();
            if (stored && seen.insert(stored).second) {
                todo.push_back(stored);
            }
        }
    }
    return true;
}

bool FObject::isSafeAlone(bool mayReadFiles) const {
    Q_UNUSED(mayReadFiles)
    return true;
}

std::vector<FExprBase> FObject::getOperands() const {
    return {};
}

void FObject::setOutOfDate(bool outOfDate) const {
    if (outOfDate) {
        FUpdateGraph::markOutOfDate(const_cast<FObject*>(this));
    } else {
        mOutOfDate = false;
    }
}

bool FObject::update() const {
    return !mOutOfDate || FUpdateGraph::update(const_cast<FObject*>(this));
}

bool FObject::addSupplier(const FObject* supplier) const {
    if (supplier == this || supplier->dependsOn(this)) {
        return false;
    }
    FUpdateGraph::link(const_cast<FObject*>(this), const_cast<FObject*>(supplier));
    return true;
}

void FObject::removeSupplier(const FObject* supplier) const {
    FUpdateGraph::unlink(const_cast<FObject*>(this), const_cast<FObject*>(supplier));
}

bool FObject::dependsOn(const FObject* supplier) const {
    return FUpdateGraph::reaches(this, supplier);
}

bool FObject::hasClient(const FObject* client, bool recursive) const {
    const std::vector<FObject*> clients = getClients();
    return recursive ? client != this && client->dependsOn(this)
                     : std::find(clients.begin(), clients.end(), client) != clients.end();
}

void FObject::blockImmediateUpdate(bool block) {
    static std::vector<std::unique_ptr<FImmediateUpdateBlocker>> blockers;
    if (block) {
        blockers.push_back(std::make_unique<FImmediateUpdateBlocker>());
    } else if (!blockers.empty()) {
        // Out of the list first, since its end may lead to further calls.
        const auto last = std::move(blockers.back());
        blockers.pop_back();
    }
}

std::vector<FObject*> FObject::getClients() const {
    return FUpdateGraph::clientsOf(this);
}

std::vector<FObject*> FObject::getSuppliers() const {
    return FUpdateGraph::suppliersOf(this);
}

std::vector<FObject*> FObject::getClientsCmdHelper(const std::vector<const FObject*>& types) const {
    return FUpdateGraph::allOf(this, types, &FUpdateGraph::reachedBy);
}

std::vector<FObject*> FObject::getSuppliersCmdHelper(const std::vector<const FObject*>& types) const {
    return FUpdateGraph::allOf(this, types, &FUpdateGraph::suppliersOf);
}
