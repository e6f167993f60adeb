#include "genericintegration/connector/FSetUpObjects.h"

#include "genericintegration/connector/layout/FConnectorLog.h"
#include "genericintegration/setup/FConfigurationGenInt.h"
#include "genericintegration/setup/FDefinitionGenInt.h"
#include "genericintegration/templates/FGenIntCommandFile.h"
#include "host/core/FHistory.h"
#include "host/core/FImmediateUpdateBlocker.h"
#include "host/core/FSelectionSet.h"
#include "host/core/FUserInterface.h"
#include "host/design/FEntryDef.h"
#include "host/design/FGeometryExport.h"
#include "host/design/FInputFile.h"
#include "host/design/FResultsFileName.h"
#include "host/lodm/FCustomComputation.h"

namespace {

FEntry* failed(const QString& reason) {
    FConnectorLog::failure(reason);
    return nullptr;
}

template <class Fits>
FEntry* onlyEntry(const FEntryHolder& holder, const Fits& fits) {
    FEntry* only = nullptr;
    for (const FExpr<FEntryBase>& handle : holder.getEntries()) {
        auto* entry = dynamic_cast<FEntry*>(handle.getStored());
        if (entry && fits(*entry)) {
            if (only) {
                return nullptr;
            }
            only = entry;
        }
    }
    return only;
}

/** The only entry that fits, or a new one. */
template <class Fits>
FEntry* findOrCreate(const QString& name, FEntryHolder& holder, const Fits& fits) {
    FEntry* entry = onlyEntry(holder, fits);
    if (!entry) {
        entry = FEntry::create(name, &holder, true);
        FHistory::instance()->addStep(entry);
    }
    return entry;
}

}  // namespace

FSetUpObjects::FSetUpObjects(const FExpr<FExternComputation>& computation) : mComputation(computation) {
    const auto* custom = dynamic_cast<FCustomComputation*>(computation.getStored());
    FObject* configuration = custom ? custom->getConfiguration().getStored() : nullptr;
    mpConfiguration = dynamic_cast<FConfigurationGenInt*>(configuration);
    FObject* definition = mpConfiguration ? mpConfiguration->getDefinition().getStored() : nullptr;
    mpDefinition = dynamic_cast<FDefinitionGenInt*>(definition);
}

QList<FSetUpObjects::Shown> FSetUpObjects::shown() const {
    QList<Shown> objects{{mComputation, nullptr}};
    if (mpConfiguration) {
        for (const FObject* type : std::initializer_list<const FObject*>{FGeometryExport::null(), FInputFile::null(),
                                                                         FResultsFileName::null()}) {
            for (const FExpr<FEntry>& entry : mpConfiguration->getEntry(type, true)) {
                objects.append({FExpr<FObject>(entry), type});
            }
        }
    }
    if (mpDefinition) {
        for (const FExpr<FGenIntFile>& file : mpDefinition->getFiles()) {
            if (file) {
                objects.append({FExpr<FObject>(file), nullptr});
            }
        }
    }
    return objects;
}

FEntry* FSetUpObjects::findGroup(const QString& name, const FObject* valueType) const {
    const QList<FExpr<FEntry>> entries = mpConfiguration->getEntry(valueType, false);
    auto* group = entries.empty() ? nullptr : dynamic_cast<FEntry*>(entries.front()->getParent());
    if (group) {
        return group;
    }
    if (!mpDefinition->findEntry(name)) {
        FEntryDef::create(name, mpDefinition, 1, 1, false, false, QString(), {});
    }
    return findOrCreate(name, *mpConfiguration, [&name](const FEntry& entry) { return entry.getName() == name; });
}

FEntry* FSetUpObjects::createEntry(const QString& groupName, const QString& name, const FObject* valueType) const {
    if (!mpDefinition) {
        return nullptr;
    }
    const FImmediateUpdateBlocker blocker;
    FEntry* group = findGroup(groupName, valueType);
    FEntryDef* groupDefinition = group ? group->getDefinition().ptr() : nullptr;
    if (!groupDefinition) {
        return failed(QStringLiteral("Could not create parent entry."));
    }
    const FEntryDef* definition = FEntryDef::create(name, groupDefinition, 1, 1, false, false, QString(), valueType);
    if (!definition) {
        return failed(QStringLiteral("Could not create entry."));
    }
    return findOrCreate(definition->getName(), *group,
                        [definition](const FEntry& entry) { return entry.getDefinition().getStored() == definition; });
}

void FSetUpObjects::removeEntry(FEntry& entry) {
    const FImmediateUpdateBlocker blocker;
    const FExpr<FEntryBase> kept(&entry);
    const FExpr<FEntryDef> definition = entry.getDefinition();
    FSelectionSet::instance()->remove(&entry);
    if (entry.getHolder()) {
        entry.getHolder()->removeEntry(kept);
    }
    if (FDefinitionBase* root = definition ? definition->getRoot() : nullptr) {
        root->findAndRemoveEntry(definition);
    }
}

bool FSetUpObjects::removeTags(const FObject* object) const {
    const auto* entry = dynamic_cast<const FEntry*>(object);
    const FExpr<FEntryDef> definition = entry ? entry->getDefinition() : FExpr<FEntryDef>();
    if (!mpDefinition || !definition) {
        return false;
    }
    mpDefinition->removeEntryFromCommandFiles(FExpr<FEntryBase>(definition));
    return true;
}

// The file must refer to nothing any more before the references of the others are looked for.
void FSetUpObjects::clearTemplate(FGenIntFile& file) const {
    auto* input = dynamic_cast<FGenIntCommandFile*>(&file);
    if (!input || !mpDefinition) {
        return;
    }
    QList<FExpr<FEntryBase>> entries;
    for (const QString& name : input->getEntryNames()) {
        if (FEntryBase* entry = mpDefinition->getEntryOfScope(name)) {
            entries.append(FExpr<FEntryBase>(entry));
        }
    }
    input->setContent(QString());
    bool isAnyRemoved = false;
    for (const FExpr<FEntryBase>& entry : qAsConst(entries)) {
        if (!mpDefinition->commandFileReferencesEntry(entry)) {
            isAnyRemoved = mpDefinition->findAndRemoveEntry(entry) || isAnyRemoved;
        }
    }
    if (isAnyRemoved) {
        mpDefinition->reinitConfigurations(false);
        FUserInterface::instance()->reinitializeEditor(true);
    }
}
