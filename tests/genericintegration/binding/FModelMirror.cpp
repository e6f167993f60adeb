#include "tests/genericintegration/binding/FModelMirror.h"

#include "genericintegration/templates/FGenIntFile.h"
#include "host/core/FChanges.h"
#include "host/core/FObjectManager.h"
#include "host/design/FDefinitionBase.h"
#include "host/run/FComputationResults.h"

#include <algorithm>

namespace {

void collectEntries(const FEntryHolder& holder, std::vector<FExprBase>& entries) {
    for (const FExpr<FEntryBase>& entry : holder.getEntries()) {
        entries.push_back(entry);
        collectEntries(*FEntryBase::of(entry), entries);
    }
}

/** The same without files that are gone, which a definition drops when its files are queried. */
FState withoutGoneFiles(FState state) {
    using Files = QList<FExpr<FGenIntFile>>;
    for (std::any& value : state.values) {
        if (auto* files = std::any_cast<Files>(&value)) {
            const auto isGone = [](const FExpr<FGenIntFile>& file) { return !FObject::exists(file.ptr()); };
            files->erase(std::remove_if(files->begin(), files->end(), isGone), files->end());
        }
    }
    return state;
}

}  // namespace

FModelMirror::FModelMirror() {
    for (FManaged* object : FObjectManager::instance()->getManaged(FManaged::null())) {
        mKnown.insert(object, present(*object));
    }
    const FChanges* changes = FChanges::instance();
    connect(changes, &FChanges::objectEntered, this, &FModelMirror::enter);
    connect(changes, &FChanges::objectLeft, this, &FModelMirror::leave);
    connect(changes, &FChanges::objectRenamed, this, &FModelMirror::rename);
    connect(changes, &FChanges::objectChanged, this, &FModelMirror::refresh);
}

FModelMirror::Known FModelMirror::present(const FManaged& object) {
    // Results are files of runs; they have no history.
    if (dynamic_cast<const FComputationResults*>(&object)) {
        return {object.getName(), {}, {}};
    }
    std::vector<FExprBase> entries;
    if (const auto* holder = dynamic_cast<const FDefinitionBase*>(&object)) {
        collectEntries(*holder, entries);
    }
    return {object.getName(), FState::capture(object), FOwnedState::capture(std::move(entries))};
}

QString FModelMirror::differences() const {
    QStringList found{mFaults};
    const auto objects = FObjectManager::instance()->getManaged(FManaged::null());
    for (FManaged* object : objects) {
        const auto known = mKnown.constFind(object);
        if (known == mKnown.constEnd()) {
            found.append(object->getName() + " is unknown");
            continue;
        }
        const Known now = present(*object);
        if (known->name != now.name) {
            found.append(now.name + " has the name " + known->name);
        }
        if (!now.state.values.empty() && !withoutGoneFiles(known->state).equals(withoutGoneFiles(now.state), *object)) {
            found.append(now.name + " has another state");
        }
        if (!known->entries.equals(now.entries)) {
            found.append(now.name + " has other entries");
        }
    }
    if (mKnown.size() != objects.size()) {
        found.append(QStringLiteral("%1 objects instead of %2").arg(mKnown.size()).arg(objects.size()));
    }
    found.removeAll(QString());
    return found.join('\n');
}

void FModelMirror::enter(FManaged* object) {
    if (mKnown.contains(object)) {
        mFaults += object->getName() + " entered twice\n";
    }
    refresh(object);
}

void FModelMirror::leave(FManaged* object) {
    if (mKnown.remove(object) == 0) {
        mFaults += object->getName() + " left without having entered\n";
    }
}

void FModelMirror::rename(FManaged* object, const QString& oldName) {
    Known& known = mKnown[object];
    if (known.name != oldName) {
        mFaults += oldName + " has the name " + known.name + '\n';
    }
    known.name = object->getName();
}

void FModelMirror::refresh(FManaged* object) {
    mKnown.insert(object, present(*object));
}
