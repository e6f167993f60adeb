#include "host/design/FEntryDef.h"

#include "host/core/FLogMsg.h"
#include "host/core/FQuotedText.h"
#include "host/design/FDefinition.h"
#include "host/design/FEntryName.h"
#include "host/design/FEntryValue.h"
#include "host/script/FCmdType.h"

#include <algorithm>

FClassData FEntryDef::mClass("FEntryDef", &FEntryBase::mClass);

bool FEntryDef::mayHold(const FEntryHolder* parent) {
    const auto* definition = parent ? dynamic_cast<const FDefinition*>(parent->getRoot()) : nullptr;
    const auto* group = dynamic_cast<const FEntryDef*>(parent);
    return definition && (!group || group->isGroup()) && parent->getLevel() < mostEntryLevels;
}

FEntryDef* FEntryDef::create(const QString& name, FEntryHolder* parent, int least, int most, bool hidden,
                             bool hasDefault, const QString& description, const FExprBase& valueOrType) {
    if (!mayHold(parent)) {
        FLogMsg::warning(
            QStringLiteral("FEntryDef"),
            QStringLiteral("entry \"%1\" isn't in a definition, or in a group of one with at most %2 levels")
                .arg(name)
                .arg(mostEntryLevels),
            QStringLiteral("It isn't created"));
        return nullptr;
    }
    const FExpr<FEntryBase> handle =
        make(parent->freeEntryName(name, nullptr), least, most, hidden, hasDefault, description, valueOrType);
    auto* definition = static_cast<FDefinition*>(parent->getRoot());
    const quint64 before = definition->getVersion();
    parent->addEntry(handle);
    if (parent != definition) {
        definition->followAddition(handle, before);
    }
    return static_cast<FEntryDef*>(handle.ptr());
}

FExpr<FEntryBase> FEntryDef::make(const QString& name, int least, int most, bool hidden, bool hasDefault,
                                  const QString& description, const FExprBase& valueOrType) {
    auto* entry = new FEntryDef(name);
    FExpr<FEntryBase> handle(entry);
    entry->mMost = std::clamp(most, 1, mostOccurrences);
    entry->mLeast = std::clamp(least, 0, entry->mMost);
    entry->mHidden = hidden;
    entry->mDescription = description;
    entry->mDefault = hasDefault ? entryValue(FExprBase(valueObject(valueOrType))) : FExprBase();
    const FObject* value = hasDefault ? entry->mDefault.getStored() : valueOrType.getStored();
    entry->mpType = value ? value->getPrototype() : nullptr;
    return handle;
}

void FEntryDef::setName(const QString& name) {
    const QString free = getHolder() ? getHolder()->freeEntryName(name, this) : legalEntryName(name);
    if (free == getName()) {
        return;
    }
    const QStringList oldPaths = getLeafPaths();
    rename(free);
    if (auto* definition = dynamic_cast<FDefinition*>(getRoot())) {
        definition->entryRenamed(this, oldPaths);
    }
}

QStringList FEntryDef::getLeafPaths() const {
    if (!isGroup()) {
        return {getFullName()};
    }
    QStringList paths;
    for (const FExpr<FEntryBase>& entry : getEntries()) {
        paths += static_cast<const FEntryDef*>(entry.ptr())->getLeafPaths();
    }
    return paths;
}

std::size_t FEntryDef::getMemory() const {
    return FEntryBase::getMemory() + static_cast<std::size_t>(mDescription.size()) * sizeof(QChar) +
           heldMemory(mDefault);
}

FEntryDef::FEntryDef(const FEntryDef& other)
    : FClass(other.getName()),
      mLeast(other.mLeast),
      mMost(other.mMost),
      mHidden(other.mHidden),
      mDescription(other.mDescription),
      mpType(other.mpType),
      mDefault(copyOfValue(other.mDefault)) {}

FExpr<FEntryBase> FEntryDef::copy() const {
    const FExpr<FEntryBase> handle(new FEntryDef(*this));
    for (const FExpr<FEntryBase>& entry : getEntries()) {
        handle->addEntry(static_cast<const FEntryDef*>(entry.ptr())->copy());
    }
    return handle;
}

QString FEntryDef::savedArguments() const {
    // From the last one on, arguments that are as they would be without being given are left out.
    const QStringList given{QString::number(mMost), QString::number(mLeast),
                            mHidden ? QStringLiteral("true") : QStringLiteral("false"), quoteText(mDescription),
                            quoteText(mpType && !hasDefault() ? mpType->getClass() : QString())};
    const QStringList byDefault{QStringLiteral("1"), given.front(), QStringLiteral("false"), quoteText(QString()),
                                quoteText(QString())};
    int count = given.size();
    while (count > 0 && given[count - 1] == byDefault[count - 1]) {
        --count;
    }
    return QStringList(given.mid(0, count)).join(QLatin1Char(','));
}

QString FEntryDef::toSavedCommand() const {
    const QString arguments = savedArguments();
    if (isGroup() && !getEntries().isEmpty() && arguments.isEmpty()) {
        return {};
    }
    return QStringLiteral("addEntry(") + quoteText(getFullName()) + QLatin1Char(',') + mDefault.toHistoryString() +
           (arguments.isEmpty() ? QString() : QLatin1Char(',') + arguments) + QLatin1Char(')');
}
