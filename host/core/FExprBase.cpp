#include "host/core/FExprBase.h"

#include "host/core/FScriptLanguage.h"
#include "host/core/FUpdateGraph.h"

#include <utility>
#include <vector>

namespace {

// Objects that hold one another in a long chain: from a depth on they die after one another, to spare the stack.
constexpr int deepestDeath = 100;
int deaths = 0;

std::vector<FObject*>& doomed() {
    static std::vector<FObject*> objects;
    return objects;
}

void destroyObject(FObject* object) {
    ++deaths;
    delete object;
    --deaths;
}

void endObject(FObject* object) {
    if (deaths >= deepestDeath) {
        object->getBlock()->kind = FObjectBlock::Kind::Elsewhere;  // out of the reach of handles
        doomed().push_back(object);
        return;
    }
    destroyObject(object);
    while (deaths == 0 && !doomed().empty()) {
        FObject* next = doomed().back();
        doomed().pop_back();
        destroyObject(next);
    }
}

}  // namespace

FExprBase& FExprBase::operator=(const FExprBase& other) {
    // The old object may own the handle that is assigned from, so the new one is taken first.
    FExprBase copy(other);
    std::swap(mpBlock, copy.mpBlock);
    return *this;
}

FExprBase& FExprBase::operator=(FExprBase&& other) noexcept {
    std::swap(mpBlock, other.mpBlock);
    return *this;
}

void FExprBase::take(FObjectBlock* block) {
    mpBlock = block;
    if (block) {
        ++block->handles;
    }
}

void FExprBase::release() {
    FObjectBlock* block = std::exchange(mpBlock, nullptr);
    if (!block || --block->handles > 0) {
        return;
    }
    if (!block->object) {
        delete block;
        return;
    }
    const bool ownedByHandles =
        block->kind == FObjectBlock::Kind::Plain || (block->kind == FObjectBlock::Kind::Managed && block->outOfModel);
    if (ownedByHandles) {
        endObject(block->object);
    }
}

bool FExprBase::isCmd() const {
    const FObject* stored = getStored();
    return stored && stored->isCmd();
}

FObject* FExprBase::getObject() const {
    FObject* stored = getStored();
    return stored ? stored->evaluate() : nullptr;
}

const FObject* FExprBase::getType() const {
    const FObject* stored = getStored();
    return stored ? stored->getEvaluatedType() : nullptr;
}

bool FExprBase::canSafelyBeUpdated(bool mayReadFiles) const {
    const FObject* stored = getStored();
    return !stored || stored->canSafelyBeUpdated(mayReadFiles);
}

QString FExprBase::toString(const FObject* scope) const {
    Q_UNUSED(scope)
    const FObject* stored = getStored();
    return stored ? stored->toString() : QStringLiteral("NULL");
}

QString FExprBase::toHistoryString() const {
    const FObject* stored = getStored();
    return stored ? stored->toHistoryString() : QStringLiteral("NULL");
}

bool FExprBase::resolve(const QString& text) {
    *this = FScriptLanguage::instance()->resolve(text, nullptr);
    return !isEmpty();
}

bool FExprBase::registerClient(const FObject* client, bool immediate) const {
    if (!mpBlock || !mpBlock->object) {
        return true;
    }
    if (immediate) {
        const_cast<FObject*>(client)->setUpdateOnDemand(false);
    }
    return client->addSupplier(mpBlock->object);
}

void FExprBase::restoreClient(const FObject* client) const {
    if (mpBlock && mpBlock->object) {
        FUpdateGraph::link(const_cast<FObject*>(client), mpBlock->object);
    }
}

bool FExprBase::assignFor(const FObject* client, const FExprBase& value) {
    unregisterClient(client);
    if (!value.registerClient(client)) {
        restoreClient(client);
        return false;
    }
    *this = value;
    return true;
}

void FExprBase::unregisterClient(const FObject* client) const {
    if (mpBlock && mpBlock->object) {
        client->removeSupplier(mpBlock->object);
    }
}
