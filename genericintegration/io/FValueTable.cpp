#include "genericintegration/io/FValueTable.h"

#include "genericintegration/io/FTagRows.h"
#include "genericintegration/templates/FExportsGroup.h"
#include "genericintegration/templates/FGenIntFile.h"
#include "genericintegration/templates/FTemplateOwner.h"
#include "host/core/FBasicType.h"
#include "host/design/FConfiguration.h"
#include "host/design/FEntry.h"

namespace {

QStringList keysOfFiles(const FTemplateOwner& definition, FValueTable::Use use) {
    const QString front = use == FValueTable::Use::Export ? FExportsGroup::prefix() : QString();
    QStringList keys;
    for (const FExpr<FGenIntFile>& file : definition.getFiles()) {
        if (file) {
            keys.append(front + file->getFileName());
        }
    }
    return keys;
}

}  // namespace

FValueTable::FValueTable(const FConfiguration& configuration, const FTemplateOwner& definition, Use use)
    : mUse(use),
      mEntryMap(configuration.getEntryMap()),
      mRows(FTagRows::of(configuration, definition, keysOfFiles(definition, use))) {}

const FTemplateKeys& FValueTable::getKeys() const {
    return mRows->getKeys();
}

const std::vector<const FEntry*>& FValueTable::getFileNameEntries() const {
    return mRows->getFileNameEntries();
}

const FEntry* FValueTable::entryOf(int row) const {
    return mRows->at(row).entry;
}

QString FValueTable::textOf(int row) const {
    const FTagRows::Row& found = mRows->at(row);
    return found.entry ? entryText(*found.entry) : found.fileName;
}

QString FValueTable::entryText(const FEntry& entry) const {
    const FExprBase& value = entry.getValue();
    if (mUse == Use::Preview && !value.canSafelyBeUpdated(false)) {
        return value.toString(nullptr).replace(QLatin1Char('\\'), QLatin1Char('/'));
    }
    const auto* basic = objectCast<FBasicType>(entry.getValueObject());
    return basic ? basic->toPlainString() : QStringLiteral("SHOULD_BE_EXPORTED");
}
