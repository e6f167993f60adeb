#include "host/design/FDefinition.h"

#include "host/core/FHistory.h"
#include "host/core/FLogMsg.h"
#include "host/core/FMerixCtrl.h"
#include "host/design/FConfiguration.h"
#include "host/design/FDefinitionCommands.h"
#include "host/design/FEntryDef.h"
#include "host/script/FCmdManager.h"
#include "host/script/FSavedTextReader.h"

#include <algorithm>

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

/** Copies of the entries that the text gives to a definition of its own, which doesn't stay. */
bool readEntries(const QString& creator, const QString& text, QList<FExpr<FEntryBase>>& entries) {
    const QString name = QStringLiteral("entries");
    QString saved = creator + QLatin1Char(' ') + name + QStringLiteral("() {\n") + text + QStringLiteral("\n}\n");
    if (parseScript(saved, name).statements.size() > 1) {
        FLogMsg::error(name, QStringLiteral("the text contains more than the entries of one definition"),
                       QStringLiteral("The entries stay unchanged"));
        return false;
    }
    const FHistoryBlocker blocker;
    FScriptNames names;
    const bool isRead = FSavedTextReader::read(saved, name, {true, true}, names) == 0;
    const FExpr<FDefinition> scratch(names.find(name));
    for (const FExpr<FEntryBase>& entry : scratch ? scratch->getEntries() : QList<FExpr<FEntryBase>>()) {
        entries.append(static_cast<const FEntryDef*>(entry.ptr())->copy());
    }
    FManaged::destroy(scratch.ptr(), true);
    return isRead && scratch.identity();
}

}  // namespace

void FDefinition::addEntry(const FExpr<FEntryBase>& entry) {
    const quint64 before = getVersion();
    FDefinitionBase::addEntry(entry);
    followAddition(entry, before);
}

void FDefinition::followAddition(const FExpr<FEntryBase>& entry, quint64 before) {
    if (FMerixCtrl::instance()->isLoadingProject()) {
        return;
    }
    const auto* added = dynamic_cast<const FEntryDef*>(entry.ptr());
    bool isFollowed = added && added->getRoot() == this && getVersion() == before + 1;
    for (FConfiguration* configuration : isFollowed ? getFollowers() : QList<FConfiguration*>()) {
        isFollowed = configuration->followAddition(*added, before) && isFollowed;
    }
    isFollowed ? tellFollowed() : reinitConfigurations(false);
}

void FDefinition::reinitConfigurations(bool reset) {
    if (FMerixCtrl::instance()->isLoadingProject()) {
        return;
    }
    for (FConfiguration* configuration : getFollowers()) {
        configuration->reinit(reset);
    }
    tellFollowed();
}

void FDefinition::setEntriesAndReassign(const QList<FExpr<FEntryBase>>& entries) {
    setEntries(entries);
    for (FConfiguration* configuration : getConfigurations()) {
        FEntry::reassign(configuration->getEntries(), getEntries());
    }
}

void FDefinition::replaceEntries(const QList<FExpr<FEntryBase>>& entries) {
    setEntriesAndReassign(entries);
    reinitConfigurations(false);
}

// Read into a definition of the same class, so that a text with errors leaves this one as it was.
bool FDefinition::setEntryDefsFromDB(const QString& text) {
    const FCmdRow* creator = FCmdManager::instance()->creatorOf(getClassData());
    QList<FExpr<FEntryBase>> entries;
    if (!creator || !readEntries(creator->name, text, entries)) {
        return false;
    }
    setEntriesAndReassign(entries);
    for (FConfiguration* configuration : getFollowers()) {
        configuration->takeNewEntries();
    }
    tellFollowed();
    return true;
}

void FDefinition::updateCommandFiles(const QString& oldName, const QString& newName) {
    Q_UNUSED(oldName)
    Q_UNUSED(newName)
}

QList<FConfiguration*> FDefinition::getConfigurations() const {
    QList<FConfiguration*> found;
    for (FObject* client : getClients()) {
        auto* configuration = dynamic_cast<FConfiguration*>(client);
        if (configuration && configuration->isInModel() && configuration->getDefinition().ptr() == this) {
            found.append(configuration);
        }
    }
    std::sort(found.begin(), found.end(), [](const auto* a, const auto* b) { return a->getDbId() < b->getDbId(); });
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
