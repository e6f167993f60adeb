#include "host/design/FEntryDef.h"

#include "host/core/FHistory.h"
#include "host/core/FLogMsg.h"
#include "host/core/FQuotedText.h"
#include "host/design/FConfiguration.h"
#include "host/design/FDefinition.h"
#include "host/design/FEntryName.h"
#include "host/design/FEntryValue.h"
#include "host/script/FCmdType.h"

#include <algorithm>

FClassData FEntryDef::mClass("FEntryDef", &FEntryBase::mClass, nullptr, &FEntryDef::fields);

namespace {

/** The entries below a holder that belong to a definition and have its default. */
void collectWithDefault(const FEntryHolder& holder, const FEntryDef& definition, QList<FEntry*>& found) {
    for (const FExpr<FEntryBase>& handle : holder.getEntries()) {
        auto* entry = static_cast<FEntry*>(FEntryBase::of(handle));
        if (entry->getDefinition().ptr() != &definition) {
            collectWithDefault(*entry, definition, found);
        } else if (entry->hasDefaultValue()) {
            found.append(entry);
        }
    }
}

}  // namespace

std::vector<std::unique_ptr<FStateField>> FEntryDef::fields() {
    return FStateFields<FEntryDef>().member(&FEntryDef::mpType).member(&FEntryDef::mDefault).take();
}

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
                .arg(name, QString::number(mostEntryLevels)),
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
    if (hasDefault) {
        entry->takeDefault(valueOrType);
    } else if (const FObject* type = valueOrType.getStored()) {
        entry->mpType = type->getPrototype();
    }
    return handle;
}

void FEntryDef::takeDefault(const FExprBase& value) {
    mDefault = entryValue(FExprBase(valueObject(value)));
    if (const FObject* taken = mDefault.getStored()) {
        mpType = taken->getPrototype();
    }
}

void FEntryDef::setDefaultValue(const FExprBase& value) {
    QList<FEntry*> followers;
    if (const auto* definition = dynamic_cast<FDefinition*>(getRoot())) {
        for (const FConfiguration* configuration : definition->getConfigurations()) {
            collectWithDefault(*configuration, *this, followers);
        }
    }
    FHistory::instance()->record(this);
    takeDefault(value);
    setOutOfDate(true);
    for (FEntry* entry : followers) {
        entry->setDefaultValue();
    }
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
