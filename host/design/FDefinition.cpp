#include "host/design/FDefinition.h"

#include "host/core/FMerixCtrl.h"
#include "host/core/FModel.h"
#include "host/design/FConfiguration.h"
#include "host/design/FDefinitionCommands.h"
#include "host/design/FEntryDef.h"

FClassData FDefinition::mClass("FDefinition", &FDefinitionBase::mClass, &definitionCommands);

namespace {

void collectCommands(const FEntryHolder& holder, QStringList& commands) {
    for (const FExpr<FEntryBase>& entry : holder.getEntries()) {
        const QString command = static_cast<const FEntryDef*>(entry.ptr())->toSavedCommand();
        if (!command.isEmpty()) {
            commands.append(command);
        }
        collectCommands(*entry.ptr(), commands);
    }
}

}  // namespace

void FDefinition::addEntry(const FExpr<FEntryBase>& entry) {
    FDefinitionBase::addEntry(entry);
    reinitConfigurations(false);
}

void FDefinition::reinitConfigurations(bool reset) {
    if (FMerixCtrl::instance()->isLoadingProject()) {
        return;
    }
    for (FConfiguration* configuration : getConfigurations()) {
        configuration->reinit(reset);
    }
}

void FDefinition::updateCommandFiles(const QString& oldName, const QString& newName) {
    Q_UNUSED(oldName)
    Q_UNUSED(newName)
}

QList<FConfiguration*> FDefinition::getConfigurations() const {
    QList<FConfiguration*> found;
    for (FManaged* entity : FModel::instance()->getEntities(FConfiguration::null())) {
        auto* configuration = static_cast<FConfiguration*>(entity);
        if (configuration->getDefinition().ptr() == this) {
            found.append(configuration);
        }
    }
    return found;
}

void FDefinition::entryRenamed(const FEntryDef* entry, const QStringList& oldLeafPaths) {
    for (FConfiguration* configuration : getConfigurations()) {
        configuration->renameEntries(entry);
    }
    if (FMerixCtrl::instance()->isLoadingProject()) {
        return;
    }
    const QStringList newLeafPaths = entry->getLeafPaths();
    for (int i = 0; i < newLeafPaths.size(); ++i) {
        updateCommandFiles(oldLeafPaths[i], newLeafPaths[i]);
    }
}

QStringList FDefinition::furtherSavedCommands() const {
    QStringList commands;
    collectCommands(*this, commands);
    return commands;
}
