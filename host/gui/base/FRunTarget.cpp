#include "host/gui/base/FRunTarget.h"

#include "host/core/FChanges.h"
#include "host/core/FObjectManager.h"
#include "host/core/FSelectionSet.h"
#include "host/design/FConnectorInterface.h"
#include "host/run/FComputationChain.h"
#include "host/run/FExternComputation.h"

namespace {

/** The computation that the object is, belongs to or is used by; null if there is none. */
FExternComputation* computationOf(FObject* object) {
    if (auto* computation = dynamic_cast<FExternComputation*>(object)) {
        return computation;
    }
    if (const auto* connector = dynamic_cast<const FConnectorInterface*>(object)) {
        return connector->getComputation().ptr();
    }
    if (const auto* results = dynamic_cast<const FComputationResults*>(object)) {
        return results->getComputation().ptr();
    }
    const std::vector<FObject*> users = object->getClientsCmdHelper({FExternComputation::null()});
    return users.empty() ? nullptr : dynamic_cast<FExternComputation*>(users.front());
}

}  // namespace

FRunTarget::FRunTarget() {
    const FChanges* changes = FChanges::instance();
    connect(changes, &FChanges::objectEntered, this, &FRunTarget::modelChanged);
    connect(changes, &FChanges::objectLeft, this, &FRunTarget::modelChanged);
    connect(changes, &FChanges::objectRenamed, this, &FRunTarget::modelChanged);
    connect(changes, &FChanges::objectChanged, this, &FRunTarget::modelChanged);
    connect(FSelectionSet::instance(), &FSelectionSet::selectionReplaced, this, &FRunTarget::followSelection);
}

FExternComputation* FRunTarget::get() const {
    if (mComputation) {
        return mComputation.ptr();
    }
    const QList<FManaged*> all = FObjectManager::instance()->getManaged(FExternComputation::null());
    auto* first = all.isEmpty() ? nullptr : dynamic_cast<FExternComputation*>(all.first());
    // Its run brings the others up to date.
    const FComputationChain::Computations chain =
        first && all.size() > 1 ? FComputationChain::of(*first) : FComputationChain::Computations();
    return chain.isEmpty() ? first : chain.last();
}

FExternComputation* FRunTarget::getRunning() const {
    FExternComputation* target = get();
    return target && !target->canRun() ? target : firstRunning();
}

FExternComputation* FRunTarget::firstRunning() {
    for (FManaged* object : FObjectManager::instance()->getManaged(FExternComputation::null())) {
        auto* computation = dynamic_cast<FExternComputation*>(object);
        if (computation && !computation->canRun()) {
            return computation;
        }
    }
    return nullptr;
}

void FRunTarget::followSelection() {
    for (const FExpr<FObject>& object : FSelectionSet::instance()->getObjects()) {
        if (FExternComputation* computation = object ? computationOf(object.getObject()) : nullptr) {
            mComputation = computation;
            mChanged.request();
            return;
        }
    }
}

void FRunTarget::modelChanged(const FObject* object) {
    if (dynamic_cast<const FExternComputation*>(object)) {
        mChanged.request();
    }
}
