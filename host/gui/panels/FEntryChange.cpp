#include "host/gui/panels/FEntryChange.h"

#include "host/core/FUserStep.h"
#include "host/design/FConfiguration.h"
#include "host/design/FDefinition.h"
#include "host/design/FEntryDef.h"
#include "host/design/FEntryTree.h"
#include "host/design/FEntryValue.h"
#include "host/gui/base/FCommandCall.h"
#include "host/gui/base/FMessageCatcher.h"
#include "host/gui/fields/FScriptText.h"
#include "host/gui/fields/FValueField.h"
#include "host/script/FCmdManager.h"
#include "host/script/FMemberCmd.h"

namespace {

/** Executes a command of the definition; the reason if it gave nothing. */
QString onDefinition(FDefinition& definition, const char* name, const std::vector<FExprBase>& arguments,
                     const QString& label) {
    const auto rows = FCmdManager::instance()->findMembers(definition.getClassData(), QString::fromLatin1(name));
    auto* command = new FMemberCmd(*rows.front());
    const FExprBase keep(command);
    command->setReceiver(FExprBase(&definition));
    const FMessageCatcher messages;
    const FExprBase result = FCommandCall::execute(*command, arguments, label);
    return result.isValid() ? QString() : messages.text();
}

FExprBase text(const QString& value) {
    return FExprBase(new FString(value));
}

FExprBase bound(const FValueField& field, const QString& entered, QString& fault) {
    return field.choices.isEmpty() ? FScriptText::bind(entered, fault) : text(entered);
}

/** The last occurrence of the definition of an entry, in the same place. */
FExpr<FEntryBase> lastOccurrence(const FEntry& entry) {
    FExpr<FEntryBase> last;
    for (const FExpr<FEntryBase>& handle : entry.getHolder()->getEntries()) {
        if (static_cast<FEntry*>(FEntryBase::of(handle))->getDefinition() == entry.getDefinition()) {
            last = handle;
        }
    }
    return last;
}

}  // namespace

QString FEntryChange::setValue(FEntry& entry, const QString& entered) {
    QString fault;
    const FExprBase value = FScriptText::bind(entered, fault);
    if (!fault.isEmpty()) {
        return fault;
    }
    const FMessageCatcher messages;
    const FUserStep step(FCommandCall::labelWith(QStringLiteral("Set %1").arg(entry.getFullName()), entered));
    return entry.setValue(copyOfValue(value)) ? QString() : messages.text();
}

QString FEntryChange::setField(FEntry& entry, const FValueField& field, const QString& entered) {
    QString fault;
    const FExprBase part = bound(field, entered, fault);
    FObject* value = entry.getValue().getStored();
    if (!fault.isEmpty() || !value) {
        return fault;
    }
    const FMessageCatcher messages;
    const FUserStep step(
        FCommandCall::labelWith(QStringLiteral("Set %1 of %2").arg(field.label, entry.getFullName()), entered));
    return field.set(*value, part) ? QString() : messages.text();
}

QString FEntryChange::reset(FEntry& entry) {
    const FUserStep step(QStringLiteral("Reset %1").arg(entry.getFullName()));
    entry.setDefaultValue();
    return {};
}

bool FEntryChange::mayAddOccurrence(const FEntry& entry) {
    const FEntryDef* definition = entry.getDefinition().ptr();
    return definition && entry.getHolder() &&
           FEntryTree::countOf(*entry.getHolder(), definition) < definition->getMaxOccurrences();
}

QString FEntryChange::addOccurrence(FEntry& entry) {
    const FMessageCatcher messages;
    const FUserStep step(QStringLiteral("Add an occurrence of %1").arg(entry.getDefinition()->getFullName()));
    const bool isAdded = FEntryTree().addOccurrence(*entry.getHolder(), *entry.getDefinition().ptr());
    return isAdded ? QString() : messages.text();
}

bool FEntryChange::mayRemoveOccurrence(const FEntry& entry) {
    const FEntryDef* definition = entry.getDefinition().ptr();
    return definition && entry.getHolder() && definition->getMaxOccurrences() > 1 &&
           FEntryTree::countOf(*entry.getHolder(), definition) > std::max(definition->getMinOccurrences(), 1);
}

QString FEntryChange::removeOccurrence(FEntry& entry) {
    const FUserStep step(QStringLiteral("Remove an occurrence of %1").arg(entry.getDefinition()->getFullName()));
    entry.getHolder()->removeEntry(lastOccurrence(entry));
    return {};
}

QString FEntryChange::freePath(const FDefinition& definition, const FEntryDef* beside) {
    const FEntryHolder* holder = &definition;
    if (beside) {
        holder = beside->isGroup() ? static_cast<const FEntryHolder*>(beside) : beside->getHolder();
    }
    const auto* group = dynamic_cast<const FEntryBase*>(holder);
    const QString name = holder->freeEntryName(QStringLiteral("newEntry"), nullptr);
    return group ? group->getFullName() + QLatin1Char('|') + name : name;
}

QString FEntryChange::addEntry(FDefinition& definition, const NewEntry& entry) {
    QString fault;
    const FExprBase standard = FScriptText::bind(entry.standard, fault);
    if (!fault.isEmpty()) {
        return fault;
    }
    return onDefinition(definition, "addEntry",
                        {text(entry.path), standard, FExprBase(new FInteger(entry.most)),
                         FExprBase(new FInteger(entry.least)), FExprBase(new FBool(false)), text(entry.description)},
                        QStringLiteral("Add entry %1").arg(entry.path));
}

QString FEntryChange::renameEntry(FDefinition& definition, const FEntryDef& entry, const QString& name) {
    const QString path = entry.getFullName();
    return onDefinition(definition, "renameEntry", {text(path), text(name)},
                        QStringLiteral("Rename entry %1").arg(path));
}

QString FEntryChange::removeEntry(FDefinition& definition, const FEntryDef& entry) {
    const QString path = entry.getFullName();
    return onDefinition(definition, "removeEntry", {text(path)}, QStringLiteral("Remove entry %1").arg(path));
}

QString FEntryChange::setDefault(FDefinition& definition, const FEntryDef& entry, const QString& entered) {
    QString fault;
    const FExprBase value = FScriptText::bind(entered, fault);
    if (!fault.isEmpty()) {
        return fault;
    }
    const QString path = entry.getFullName();
    return onDefinition(definition, "setEntryDefault", {text(path), value},
                        QStringLiteral("Set the default of %1").arg(path));
}
